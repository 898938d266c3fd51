#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace gns {

/// Texts of unknown origin, made fit to be shown.

/// True for a byte inside a character of UTF-8, behind its first one.
constexpr bool Continues_character(char c) {
  return (static_cast<unsigned char>(c) & 0xC0U) == 0x80;
}

/// How many characters of UTF-8 the text holds.
std::size_t Count_characters(std::string_view text);

/// The longest beginning of the text that has no more bytes than `limit` and cuts no character.
std::string_view Beginning(std::string_view text, std::size_t limit);

/// The text with all that a terminal could take for a command replaced: control characters, and
/// bytes that are no UTF-8, become "\x1b" and the like. Line ends and tabs stay.
std::string Escaped(std::string_view text);

/// A field of a file in quotes, on one line: escaped, and no more than 200 bytes of it.
std::string Quoted(std::string_view field);

/// A word of a command line, in quotes where a shell could take it apart.
std::string Shell_word(const std::string& word);

}  // namespace gns
