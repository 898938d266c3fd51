#include "bindings/java/native/Asked_options.h"

#include <array>
#include <cmath>
#include <cstdint>
#include <optional>

#include "bindings/java/native/Java_errors.h"

namespace gns {

namespace {

std::optional<double> Number(double value) {
  return std::isnan(value) ? std::nullopt : std::optional(value);
}

}  // namespace

Asked Asked_by(JNIEnv* env, bool directed, bool weighted, bool links, jdoubleArray numbers) {
  std::array<jdouble, 6> n{};
  env->GetDoubleArrayRegion(numbers, 0, n.size(), n.data());
  Check_for_java_error(env);
  const auto [intensity, min_weight, max_weight, time_limit, k, jobs] = n;
  Asked asked;
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
