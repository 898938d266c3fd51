#include "bindings/java/native/zumo_community_Analysis.h"

#include <array>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <tuple>
#include <utility>
#include <vector>

#include "bindings/java/native/Asked_options.h"
#include "bindings/java/native/Int_array.h"
#include "bindings/java/native/Java_class.h"
#include "bindings/java/native/Java_strings.h"
#include "bindings/java/native/Opened_analysis.h"
#include "bindings/java/native/String_array.h"
#include "bindings/java/native/Typed_method.h"

namespace gns {

namespace {

Opened_analysis& At(jlong handle) {
  // Java holds it as a number. NOLINTNEXTLINE(performance-no-int-to-ptr)
  return *reinterpret_cast<Opened_analysis*>(handle);
}

jlong Handle_of(std::unique_ptr<Opened_analysis> analysis) {
  return reinterpret_cast<jlong>(analysis.release());
}

std::vector<vorlane::Node> Numbers_of(JNIEnv* env, jintArray array) {
  std::vector<vorlane::Node> numbers(static_cast<std::size_t>(env->GetArrayLength(array)));
  env->GetIntArrayRegion(array, 0, static_cast<jsize>(numbers.size()),
                         reinterpret_cast<jint*>(numbers.data()));
  return numbers;
}

std::vector<double> Weights_of(JNIEnv* env, jdoubleArray array) {
  std::vector<double> weights(static_cast<std::size_t>(env->GetArrayLength(array)));
  env->GetDoubleArrayRegion(array, 0, static_cast<jsize>(weights.size()), weights.data());
  return weights;
}

Local_ref<jobject> Rows_object(JNIEnv* env, const vorlane::Rows& rows) {
  const Java_class type(env, "zumo/community/IntRows");
  const Int_array starts = Int_array_of(env, rows.Starts());
  const Int_array values = Int_array_of(env, rows.Values());
  return type.New(type.Method("<init>", "([I[I)V"), starts.Get(), values.Get());
}

jobject Level_object(JNIEnv* env, const vorlane::Level& level, jobjectArray names) {
  constexpr const char* init = "([Ljava/lang/String;II[I[I[I[I[I[I[I[I[I[I[I)V";
  const Java_class type(env, "zumo/community/Level");
  const vorlane::Distributions& all = level.statistics.all;
  const std::array<Int_array, 11> parts = {Int_array_of(env, level.members.Starts()),
                                           Int_array_of(env, level.members.Values()),
                                           Int_array_of(env, level.cliques.Starts()),
                                           Int_array_of(env, level.cliques.Values()),
                                           Int_array_of(env, level.links.Starts(), 2),
                                           Pairs_of(env, level.links.Values()),
                                           Overlaps_of(env, level.overlaps.Values()),
                                           Pairs_of(env, all.size),
                                           Pairs_of(env, all.degree),
                                           Pairs_of(env, all.overlap),
                                           Pairs_of(env, all.membership)};
  const auto make = [&](const auto&... part) {
    return type.New(type.Method("<init>", init), names, static_cast<jint>(level.k),
                    static_cast<jint>(level.exact_count), part.Get()...);
  };
  return std::apply(make, parts).Release();
}

}  // namespace

}  // namespace gns

using gns::At;

jlong Java_zumo_community_Analysis_open(JNIEnv* env, jclass /*type*/, jstring link_file,
                                        jboolean directed, jboolean weighted, jboolean links,
                                        jdoubleArray numbers, jobjectArray texts) {
  return gns::Typed_method(env, [&] {
    std::string path = gns::Needed_string(env, link_file);
    const gns::Asked asked = gns::Asked_by(env, directed != JNI_FALSE, weighted != JNI_FALSE,
                                           links != JNI_FALSE, numbers, texts);
    return gns::Handle_of(
        std::make_unique<gns::Opened_analysis>(std::move(path), asked.how, asked.options));
  });
}

jlong Java_zumo_community_Analysis_openLinks(JNIEnv* env, jclass /*type*/, jint count,
                                             jintArray from, jintArray to, jdoubleArray weights,
                                             jboolean directed, jboolean links,
                                             jdoubleArray numbers) {
  return gns::Typed_method(env, [&] {
    const bool weighted = weights != nullptr;
    const gns::Asked asked =
        gns::Asked_by(env, directed != JNI_FALSE, weighted, links != JNI_FALSE, numbers, nullptr);
    if (count < 0)
      throw vorlane::Error(vorlane::Error_kind::parameters, "The count of nodes is negative.");
    vorlane::Network::Builder builder(static_cast<vorlane::Node>(count), asked.how);
    builder.Add(gns::Numbers_of(env, from), gns::Numbers_of(env, to),
                weighted ? gns::Weights_of(env, weights) : std::vector<double>());
    return gns::Handle_of(
        std::make_unique<gns::Opened_analysis>(std::move(builder), asked.how, asked.options));
  });
}

jobject Java_zumo_community_Analysis_cliques(JNIEnv* env, jclass /*type*/, jlong handle) {
  return gns::Typed_method(env, [&] {
    return gns::Rows_object(env, At(handle).Analysis().Find_cliques().members).Release();
  });
}

jint Java_zumo_community_Analysis_exactCliqueCount(JNIEnv* env, jclass /*type*/, jlong handle) {
  return gns::Typed_method(
      env, [&] { return static_cast<jint>(At(handle).Analysis().Find_cliques().exact_count); });
}

jobject Java_zumo_community_Analysis_next(JNIEnv* env, jclass /*type*/, jlong handle,
                                          jobjectArray names) {
  return gns::Typed_method(env, [&]() -> jobject {
    const std::optional<vorlane::Level> level = At(handle).Analysis().Next();
    return level ? gns::Level_object(env, *level, names) : nullptr;
  });
}

jobjectArray Java_zumo_community_Analysis_names(JNIEnv* env, jclass /*type*/, jlong handle) {
  return gns::Typed_method(env, [&] {
    const vorlane::Network& network = At(handle).Network();
    gns::Modified_utf8 encoding;
    const auto name_of = [&](vorlane::Node node) {
      return gns::Utf_to_String(env, encoding, network.Name(node));
    };
    return gns::String_array(env, network.size() + 1, name_of).Release();
  });
}

void Java_zumo_community_Analysis_stop(JNIEnv* /*env*/, jclass /*type*/, jlong handle) {
  At(handle).Control().Stop();
}

jstring Java_zumo_community_Analysis_report(JNIEnv* env, jclass /*type*/, jlong handle) {
  return gns::Typed_method(env, [&] {
    gns::Modified_utf8 encoding;
    return gns::Utf_to_String(env, encoding, At(handle).Control().Report());
  });
}

void Java_zumo_community_Analysis_readProgress(JNIEnv* env, jclass /*type*/, jlong handle,
                                               jlongArray figures) {
  const vorlane::Progress now = At(handle).Control().Now();
  const std::array<jlong, 5> told = {
      static_cast<jlong>(now.cliques_found), static_cast<jlong>(now.nodes_left),
      static_cast<jlong>(now.k_cliques_found), static_cast<jlong>(now.work_done),
      static_cast<jlong>(now.work_total)};
  env->SetLongArrayRegion(figures, 0, told.size(), told.data());
}

void Java_zumo_community_Analysis_close(JNIEnv* /*env*/, jclass /*type*/, jlong handle) {
  delete &At(handle);
}
