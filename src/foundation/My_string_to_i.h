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

/// Takes integers in their plain form off the front of `text` while one comes behind the other with
/// delimiters between, and calls use(number) for each. What is left is empty or begins with a word
/// of another form. Takes nothing if the delimiter is a digit.
template <typename Use>
void Chop_plain(std::string_view& text, char delimiter, Use use) {
  constexpr std::ptrdiff_t most_digits = std::numeric_limits<std::int32_t>::digits10;
  if (delimiter >= '0' && delimiter <= '9') return;
  const char* at = text.data();
  const char* const end = at + text.size();
  for (;;) {
    while (at != end && *at == delimiter) ++at;
    text = {at, end};
    const bool negative = at != end && *at == '-';
    if (negative) ++at;
    const char* const digits = at;
    std::uint32_t size = 0;
    for (; at != end && *at >= '0' && *at <= '9'; ++at)
      size = 10 * size + static_cast<std::uint32_t>(*at - '0');
    if (at == digits || at - digits > most_digits || (at != end && *at != delimiter)) return;
    use(static_cast<std::int32_t>(negative ? 0U - size : size));
  }
}

}  // namespace gns
