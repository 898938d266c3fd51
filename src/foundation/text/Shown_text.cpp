#include "foundation/text/Shown_text.h"

#include <algorithm>

#include "foundation/text/Utf8.h"

namespace gns {

namespace {

unsigned Byte(char c) { return static_cast<unsigned char>(c); }

/// The bytes of the character with which the text begins; 0 if it is no UTF-8 or a control
/// character.
std::size_t Shown_length(std::string_view text) {
  constexpr unsigned printable = ' ';
  constexpr unsigned second_controls = 0xA0;
  const std::size_t length = Character_length(text);
  const unsigned lead = Byte(text[0]);
  const bool control = length == 1 ? lead < printable || lead == 0x7F
                                   : length == 2 && lead == 0xC2 && Byte(text[1]) < second_controls;
  return control ? 0 : length;
}

void Append_hexadecimal(char c, std::string& text) {
  constexpr std::string_view digits = "0123456789abcdef";
  text.append("\\x") += digits[Byte(c) >> 4U];
  text += digits[Byte(c) & 0xFU];
}

std::string Escape_all_but(std::string_view kept, std::string_view text) {
  std::string escaped;
  escaped.reserve(text.size());
  while (!text.empty()) {
    std::size_t length = kept.find(text[0]) != std::string_view::npos ? 1 : Shown_length(text);
    if (length > 0) {
      escaped += text.substr(0, length);
    } else {
      Append_hexadecimal(text[0], escaped);
      length = 1;
    }
    text.remove_prefix(length);
  }
  return escaped;
}

}  // namespace

std::size_t Count_characters(std::string_view text) {
  return text.size() - static_cast<std::size_t>(std::ranges::count_if(text, Continues_character));
}

std::string_view Beginning(std::string_view text, std::size_t limit) {
  if (text.size() <= limit) return text;
  constexpr std::size_t most_continued = 3;
  std::size_t end = limit;
  while (end > 0 && limit - end < most_continued && Continues_character(text[end])) --end;
  return text.substr(0, end);
}

std::string Escaped(std::string_view text) { return Escape_all_but("\n\t", text); }

std::string Quoted(std::string_view field) {
  constexpr std::size_t most = 200;
  const std::string_view shown = Beginning(field, most);
  std::string quoted = "'";
  quoted += Escape_all_but("", shown);
  return quoted += shown.size() < field.size() ? "...'" : "'";
}

std::string Shell_word(const std::string& word) {
  constexpr std::string_view plain =
      "abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789_-+./,:@%";
  const bool is_plain = !word.empty() && word.find_first_not_of(plain) == std::string::npos;
  if (is_plain) return word;
  std::string quoted = "'";
  for (const char c : word) quoted += c == '\'' ? "'\\''" : std::string(1, c);
  return quoted + "'";
}

}  // namespace gns
