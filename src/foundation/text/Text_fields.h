#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "foundation/text/Character_set.h"

namespace gns {

/// White space of formatted input: blank, \t, \n, \v, \f, \r. One comparison tells for nearly all
/// other characters.
constexpr bool Is_space(char c) {
  return static_cast<unsigned char>(c) <= ' ' && (c == ' ' || (c >= '\t' && c <= '\r'));
}

/// Removes the white space at the front of `text`.
inline void Skip_space(std::string_view& text) {
  std::size_t start = 0;
  while (start < text.size() && Is_space(text[start])) ++start;
  text.remove_prefix(start);
}

/// Takes the next white-space-delimited word off the front of `text`; empty if there is none.
/// NUL bytes are ordinary characters.
inline std::string_view Extract_word(std::string_view& text) {
  Skip_space(text);
  std::size_t length = 0;
  while (length < text.size() && !Is_space(text[length])) ++length;
  const std::string_view word = text.substr(0, length);
  text.remove_prefix(length);
  return word;
}

/// The text with small letters in place of the capitals of ASCII.
std::string Lower_case(std::string_view text);

/// The part of `text` that is left without the characters of the set `characters` at its two ends.
std::string_view Trimmed(std::string_view text, std::string_view characters);

/// The same as a copy.
std::string trim(std::string_view text, std::string_view characters);
std::string trim(std::string_view text, const Character_set& characters);

}  // namespace gns
