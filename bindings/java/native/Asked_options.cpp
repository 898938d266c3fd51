#include "bindings/java/native/Asked_options.h"

#include <array>
#include <cmath>
#include <cstdint>
#include <optional>
#include <string>

#include "bindings/java/native/Java_errors.h"
#include "bindings/java/native/Java_strings.h"
#include "bindings/java/native/Local_ref.h"

namespace gns {

namespace {

std::optional<double> Number(double value) {
  return std::isnan(value) ? std::nullopt : std::optional(value);
}

std::string Text_at(JNIEnv* env, jobjectArray texts, jsize place) {
  const Local_ref<jstring> text(env,
                                static_cast<jstring>(env->GetObjectArrayElement(texts, place)));
  Check_for_java_error(env);
  return Needed_string(env, text.Get());
}

void Add_texts(JNIEnv* env, jobjectArray texts, vorlane::Link_options& how) {
  constexpr jsize first_column = 2;
  how.format = Text_at(env, texts, 0);
  how.blanks = Text_at(env, texts, 1);
  const jsize count = env->GetArrayLength(texts);
  for (jsize place = first_column; place < count; ++place)
    how.columns.push_back(Text_at(env, texts, place));
}

}  // namespace

Asked Asked_by(JNIEnv* env, bool directed, bool weighted, bool links, jdoubleArray numbers,
               jobjectArray texts) {
  std::array<jdouble, 6> n{};
  env->GetDoubleArrayRegion(numbers, 0, n.size(), n.data());
  Check_for_java_error(env);
  const auto [intensity, min_weight, max_weight, time_limit, k, jobs] = n;
  Asked asked;
  if (texts != nullptr) Add_texts(env, texts, asked.how);
  asked.how.directed = directed;
  asked.how.weighted = weighted;
  asked.how.min_weight = Number(min_weight);
  asked.how.max_weight = Number(max_weight);
  asked.options.intensity = Number(intensity);
  asked.options.time_limit = Number(time_limit);
  if (!std::isnan(k)) asked.options.k = k > 0 ? static_cast<std::uint32_t>(k) : 0;
  asked.options.links = links;
  asked.options.workers = static_cast<unsigned>(jobs);
  return asked;
}

}  // namespace gns
