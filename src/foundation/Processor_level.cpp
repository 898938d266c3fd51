#include "foundation/Processor_level.h"

#include <algorithm>
#include <atomic>

#if defined(__x86_64__) && !defined(VORLANE_SANITIZED)
#include <cpuid.h>
#endif

namespace gns {

namespace {

#if defined(__x86_64__) && !defined(VORLANE_SANITIZED)
/// clang++ 14 has no other way to ask for it.
bool Has_lzcnt() {
  constexpr unsigned extended_features = 0x80000001;
  unsigned a = 0;
  unsigned b = 0;
  unsigned c = 0;
  unsigned d = 0;
  return __get_cpuid(extended_features, &a, &b, &c, &d) != 0 && (c & bit_LZCNT) != 0;
}
#endif

std::atomic<Processor_level> level_in_use = Best_processor_level();

}  // namespace

Processor_level Best_processor_level() {
#if defined(__x86_64__) && !defined(VORLANE_SANITIZED)
  __builtin_cpu_init();
  const bool has_bit_count = __builtin_cpu_supports("popcnt") && Has_lzcnt() &&
                             __builtin_cpu_supports("bmi") && __builtin_cpu_supports("bmi2") &&
                             __builtin_cpu_supports("avx2");
  if (!has_bit_count) return Processor_level::plain;
  const bool is_wide = __builtin_cpu_supports("avx512f") && __builtin_cpu_supports("avx512bw") &&
                       __builtin_cpu_supports("avx512dq") && __builtin_cpu_supports("avx512vl") &&
                       __builtin_cpu_supports("avx512vpopcntdq");
  return is_wide ? Processor_level::wide : Processor_level::bit_count;
#else
  return Processor_level::plain;
#endif
}

Processor_level Processor_level_in_use() { return level_in_use.load(std::memory_order_relaxed); }

void Set_processor_level(Processor_level level) {
  level_in_use = std::min(level, Best_processor_level());
}

}  // namespace gns
