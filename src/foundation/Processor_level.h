#pragma once

#include <cstdint>

namespace gns {

/// What the kernels use of the processor that they run on. Everything else is compiled for any
/// processor of the architecture. Results never depend on the level: kernels reckon with integers.
enum class Processor_level : std::uint8_t {
  plain,      ///< what the whole program is compiled for
  bit_count,  ///< POPCNT, LZCNT, BMI, BMI2, AVX2
  wide,       ///< these and AVX-512 with VPOPCNTDQ
};

/// The highest level that this processor has; always `plain` on others than x86-64 and under
/// sanitizers, which would take long to compile the versions.
Processor_level Best_processor_level();

/// The level that kernels use: the best one, unless another was set.
Processor_level Processor_level_in_use();

/// Sets the level for kernels that start from now on, or the best one if that is lower. For
/// comparisons of one level with another.
void Set_processor_level(Processor_level level);

#if defined(__x86_64__) && !defined(VORLANE_SANITIZED)

template <typename Kernel>
[[gnu::target("popcnt,lzcnt,bmi,bmi2,avx2"), gnu::flatten]] void Run_bit_count(
    const Kernel& kernel) {
  kernel();
}

template <typename Kernel>
[[gnu::target("popcnt,lzcnt,bmi,bmi2,avx2,avx512f,avx512bw,avx512dq,avx512vl,avx512vpopcntdq"),
  gnu::flatten]] void
Run_wide(const Kernel& kernel) {
  kernel();
}

#endif

/// Calls kernel(), a function object without arguments and value, in a version compiled for the
/// level in use. What is inlined into it is compiled so, too: g++ inlines everything, clang++ what
/// it finds worth it and what is marked `gnu::always_inline`. So a kernel should be a whole loop.
template <typename Kernel>
void Run_at_processor_level(const Kernel& kernel) {
#if defined(__x86_64__) && !defined(VORLANE_SANITIZED)
  switch (Processor_level_in_use()) {
    case Processor_level::wide:
      return Run_wide(kernel);
    case Processor_level::bit_count:
      return Run_bit_count(kernel);
    case Processor_level::plain:
      break;
  }
#endif
  kernel();
}

}  // namespace gns
