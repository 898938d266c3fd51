#include "foundation/text/My_int2string.h"

#include <cmath>

namespace gns {

std::string int2string(std::uint32_t value) { return std::to_string(value); }
std::string int2string(std::int32_t value) { return std::to_string(value); }

std::string int2string(std::uint32_t value, unsigned width) {
  return int2string(static_cast<std::int32_t>(value), width);
}

std::string int2string(std::int32_t value, unsigned width) {
  std::string text = int2string(value);
  if (value == 0) return text.assign(width, '0');
  const double wanted = width;
  const double logarithm = std::log10(std::abs(static_cast<double>(value)));
  if (logarithm >= wanted - 1) return text;
  // The small subtraction makes exact powers of ten come out right.
  const auto zeros = static_cast<std::size_t>(wanted - logarithm - 1e-8);
  return text.insert(value < 0 ? 1 : 0, zeros, '0');
}

std::string operator+(const std::string& text, std::uint32_t value) {
  return text + int2string(value);
}

std::string operator+(const std::string& text, std::int32_t value) {
  return text + int2string(value);
}

}  // namespace gns
