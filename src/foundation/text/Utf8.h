#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace gns {

/// The bytes of the character of UTF-8 at the front of the text; 0 if there is none, as in front of
/// halves of characters, of longer forms than need be, and of surrogates. The text isn't empty.
std::size_t Character_length(std::string_view text);

/// What stands in texts for what they can't hold.
constexpr std::string_view replacement_character = "\xEF\xBF\xBD";

/// Appends the text in a form in which some of its characters are written otherwise. `is_plain(c)`
/// tells of a byte below 0x80 whether it is copied as it is; `escape(c, out)` appends the others.
/// Bytes that are no UTF-8 become replacement characters; then the result is false.
template <typename Is_plain, typename Escape>
bool Append_escaped(std::string_view text, std::string& out, Is_plain is_plain, Escape escape) {
  bool whole = true;
  while (!text.empty()) {
    std::size_t plain = 0;
    while (plain < text.size() && static_cast<unsigned char>(text[plain]) < 0x80 &&
           is_plain(text[plain]))
      ++plain;
    out.append(text.substr(0, plain));
    text.remove_prefix(plain);
    if (text.empty()) break;
    const std::size_t length = Character_length(text);
    if (length == 0)
      out.append(replacement_character);
    else if (length == 1)
      escape(text.front(), out);
    else
      out.append(text.substr(0, length));
    whole = whole && length > 0;
    text.remove_prefix(length == 0 ? 1 : length);
  }
  return whole;
}

}  // namespace gns
