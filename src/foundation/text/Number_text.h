#pragma once

#include <array>
#include <charconv>
#include <concepts>
#include <string>

namespace gns {

/// Appends a number: an integer in plain digits, another with as many digits as tell it from all
/// others.
template <typename Number>
requires std::integral<Number> || std::floating_point<Number>
void Append_number(Number value, std::string& out) {
  constexpr std::size_t enough = 32;
  std::array<char, enough> text;  // NOLINT(cppcoreguidelines-pro-type-member-init): filled below
  out.append(text.data(), std::to_chars(text.data(), text.data() + enough, value).ptr);
}

}  // namespace gns
