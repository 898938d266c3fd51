#include "bindings/java/native/zumo_community_Parts.h"

#include <cstdint>
#include <string>
#include <vector>

#include "bindings/java/native/Asked_options.h"
#include "bindings/java/native/Int_array.h"
#include "bindings/java/native/Java_strings.h"
#include "bindings/java/native/Typed_method.h"
#include "vorlane/control.h"
#include "vorlane/parts.h"

namespace gns {

namespace {

vorlane::Control& Control_at(jlong handle) {
  // Java holds it as a number. NOLINTNEXTLINE(performance-no-int-to-ptr)
  return *reinterpret_cast<vorlane::Control*>(handle);
}

/// As the engine counts them; what is below 0 is none.
std::uint64_t Number(jint number) { return number > 0 ? static_cast<std::uint64_t>(number) : 0; }

/// The numbers of the parts that are not done.
std::vector<std::size_t> Left_of(const std::vector<vorlane::Part_state>& parts) {
  std::vector<std::size_t> left;
  for (std::size_t i = 0; i < parts.size(); ++i)
    if (parts[i] != vorlane::Part_state::done) left.push_back(i + 1);
  return left;
}

}  // namespace

}  // namespace gns

using gns::Control_at;
using gns::Needed_string;
using gns::Typed_method;

jlong Java_zumo_community_Parts_open(JNIEnv* env, jclass /*type*/) {
  return Typed_method(env, [] { return reinterpret_cast<jlong>(new vorlane::Control); });
}

void Java_zumo_community_Parts_plan(JNIEnv* env, jclass /*type*/, jlong handle, jstring work,
                                    jstring link_file, jstring results_dir, jint parts,
                                    jboolean directed, jdoubleArray numbers, jobjectArray texts) {
  Typed_method(env, [&] {
    const gns::Asked asked =
        gns::Asked_by(env, directed != JNI_FALSE, false, false, numbers, texts);
    vorlane::Plan_parts(Needed_string(env, link_file), asked.how, asked.options,
                        Needed_string(env, results_dir), Needed_string(env, work),
                        gns::Number(parts), Control_at(handle));
  });
}

jintArray Java_zumo_community_Parts_searchLeft(JNIEnv* env, jclass /*type*/, jstring work) {
  return Typed_method(env, [&] {
    const auto status = vorlane::Status_of_parts(Needed_string(env, work));
    return gns::Int_array_of(env, gns::Left_of(status.search)).Release();
  });
}

jboolean Java_zumo_community_Parts_isGathered(JNIEnv* env, jclass /*type*/, jstring work) {
  return Typed_method(env, [&]() -> jboolean {
    const auto status = vorlane::Status_of_parts(Needed_string(env, work));
    return status.gather == vorlane::Part_state::done ? JNI_TRUE : JNI_FALSE;
  });
}

jintArray Java_zumo_community_Parts_levelsLeft(JNIEnv* env, jclass /*type*/, jstring work) {
  return Typed_method(env, [&] {
    const auto status = vorlane::Status_of_parts(Needed_string(env, work));
    return gns::Int_array_of(env, gns::Left_of(status.levels)).Release();
  });
}

jlong Java_zumo_community_Parts_search(JNIEnv* env, jclass /*type*/, jlong handle, jstring work,
                                       jstring elsewhere, jint part) {
  return Typed_method(env, [&] {
    return static_cast<jlong>(vorlane::Search_part(Needed_string(env, work), gns::Number(part),
                                                   Control_at(handle),
                                                   Needed_string(env, elsewhere)));
  });
}

jlong Java_zumo_community_Parts_gather(JNIEnv* env, jclass /*type*/, jlong handle, jstring work) {
  return Typed_method(env, [&] {
    return static_cast<jlong>(vorlane::Gather_parts(Needed_string(env, work), Control_at(handle)));
  });
}

jlong Java_zumo_community_Parts_levels(JNIEnv* env, jclass /*type*/, jlong handle, jstring work,
                                       jstring elsewhere, jint part) {
  return Typed_method(env, [&] {
    return static_cast<jlong>(vorlane::Find_levels_of_part(Needed_string(env, work),
                                                           gns::Number(part), Control_at(handle),
                                                           Needed_string(env, elsewhere)));
  });
}

void Java_zumo_community_Parts_finish(JNIEnv* env, jclass /*type*/, jlong handle, jstring work) {
  Typed_method(env, [&] { vorlane::Finish_parts(Needed_string(env, work), Control_at(handle)); });
}

void Java_zumo_community_Parts_stop(JNIEnv* /*env*/, jclass /*type*/, jlong handle) {
  Control_at(handle).Stop();
}

void Java_zumo_community_Parts_close(JNIEnv* /*env*/, jclass /*type*/, jlong handle) {
  delete &Control_at(handle);
}
