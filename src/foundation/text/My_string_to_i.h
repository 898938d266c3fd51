#pragma once

#include <algorithm>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <limits>
#include <string_view>
#include <type_traits>

#include "foundation/text/Delimiter_places.h"

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

/// Converts the `length` characters in front of `end`, 1 to 8, if all are digits; false otherwise.
/// Reads eight characters in front of `end`, whatever the length.
inline bool Convert_digits(const char* end, std::size_t length, std::int32_t& number) {
  if constexpr (std::endian::native != std::endian::little)
    return Convert_plain({end - length, length}, number);
  constexpr std::uint64_t ones = 0x0101010101010101;
  std::uint64_t digits = 0;
  std::memcpy(&digits, end - sizeof digits, sizeof digits);
  // What stands in front of the number becomes zeros; digits become their values.
  const auto in_front = 8 * static_cast<unsigned>(sizeof digits - length);
  digits = ((digits ^ ('0' * ones)) >> in_front) << in_front;
  if (((digits | (digits + (0x7F - 9) * ones)) & (0x80 * ones)) != 0) return false;
  // Pairs of digits become one number, then pairs of those, then these two.
  digits = (digits * 10 + (digits >> 8U)) & 0x00FF00FF00FF00FF;
  digits = (digits * 100 + (digits >> 16U)) & 0x0000FFFF0000FFFF;
  number = static_cast<std::int32_t>((digits * 10'000 + (digits >> 32U)) & 0xFFFFFFFF);
  return true;
}

/// Converts the part of a text from `start` up to `end` as Convert_plain() does.
inline bool Convert_plain_part(std::string_view text, std::size_t start, std::size_t end,
                               std::int32_t& number) {
  constexpr std::size_t eight = 8;
  const std::size_t length = end - start;
  return (length > 0 && length <= eight && end >= eight &&
          Convert_digits(text.data() + end, length, number)) ||
         Convert_plain(text.substr(start, length), number);
}

/// Takes integers in their plain form off the front of `text` while one comes behind the other with
/// delimiters between, and calls use(number) for each. What is left is empty or begins with a word
/// of another form. Takes nothing if the delimiter is a digit.
template <typename Use>
void Chop_plain(std::string_view& text, char delimiter, Use use) {
  if (delimiter >= '0' && delimiter <= '9') return;
  Delimiter_places delimiters(text, Equal_to(delimiter));
  std::size_t start = 0;
  while (start < text.size()) {
    const std::size_t end = delimiters.Next();
    std::int32_t number = 0;
    if (end > start) {
      if (!Convert_plain_part(text, start, end, number)) break;
      use(number);
    }
    start = std::min(end + 1, text.size());
  }
  text.remove_prefix(start);
}

}  // namespace gns
