#pragma once

#include <cstddef>
#include <cstdint>
#include <limits>
#include <string_view>
#include <type_traits>

namespace gns {

/// Takes an integer off the front of `text` as formatted input of that type does: white space is
/// skipped, then a sign and all digits are taken. False, with nothing changed, if there are no
/// digits or the number doesn't fit. A negative number into an unsigned integer wraps: "-1" gives
/// 4294967295.
bool Extract_integer(std::string_view& text, std::int32_t& number);
bool Extract_integer(std::string_view& text, std::uint32_t& number);

/// Converts an integer in its plain form, which nearly all have: up to nine digits, if the number
/// is negative behind a minus sign. False, with nothing changed, for any other text.
template <typename Integer>
bool Convert_plain(std::string_view text, Integer& number) {
  constexpr std::size_t most_digits = std::numeric_limits<std::int32_t>::digits10;
  const bool negative = std::is_signed_v<Integer> && text.starts_with('-');
  const std::string_view digits = text.substr(negative ? 1 : 0);
  if (digits.empty() || digits.size() > most_digits) return false;
  std::int32_t size = 0;
  for (const char c : digits) {
    if (c < '0' || c > '9') return false;
    size = 10 * size + (c - '0');
  }
  number = static_cast<Integer>(negative ? -size : size);
  return true;
}

}  // namespace gns
