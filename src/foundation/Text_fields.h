#pragma once

#include <string>
#include <string_view>

namespace gns {

/// White space of formatted input: blank, \t, \n, \v, \f, \r.
constexpr bool Is_space(char c) { return c == ' ' || (c >= '\t' && c <= '\r'); }

/// Removes the white space at the front of `text`.
void Skip_space(std::string_view& text);

/// Takes the next white-space-delimited word off the front of `text`; empty if there is none.
/// NUL bytes are ordinary characters.
std::string_view Extract_word(std::string_view& text);

/// The part of `text` that is left without the characters of the set `characters` at its two ends.
std::string_view Trimmed(std::string_view text, std::string_view characters);

/// The same as a copy.
std::string trim(std::string_view text, std::string_view characters);

}  // namespace gns
