#pragma once

#include <cstdint>

namespace gns {

/// How many digits a number has in decimal.
constexpr std::uint32_t Decimal_digits(std::uint64_t number) {
  constexpr std::uint64_t base = 10;
  std::uint32_t digits = 1;
  for (; number >= base; number /= base) ++digits;
  return digits;
}

}  // namespace gns
