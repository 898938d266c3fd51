#include "bindings/java/native/Modified_utf8.h"

#include <algorithm>
#include <cstddef>

namespace gns {

namespace {

constexpr char32_t replacement = 0xFFFD;

unsigned Byte(char c) { return static_cast<unsigned char>(c); }

/// True if every byte stands for itself.
bool Is_plain(std::string_view text) {
  return std::all_of(text.begin(), text.end(), [](char c) { return Byte(c) - 1 < 0x7F; });
}

/// A byte sequence at the front of a text.
struct Sequence {
  std::size_t length;  ///< bytes that belong together
  bool whole;          ///< they make a character; otherwise they are broken
};

/// How many bytes a sequence has that begins with this one; 0 if none does.
std::size_t Length_behind(unsigned lead) {
  if (lead < 0x80) return 1;
  if (lead >= 0xC2 && lead < 0xE0) return 2;
  if (lead >= 0xE0 && lead < 0xF0) return 3;
  return lead >= 0xF0 && lead < 0xF5 ? 4 : 0;
}

/// True if the second byte goes with the first. Characters longer than need be, and those behind
/// the last, are none.
bool Go_together(unsigned lead, unsigned next) {
  if (lead == 0xE0) return next >= 0xA0;
  if (lead == 0xF0) return next >= 0x90;
  return lead != 0xF4 || next < 0x90;
}

/// The sequence at the front of the text. Surrogates and the zero of two bytes are sequences like
/// any other.
Sequence First_sequence(std::string_view text) {
  const unsigned lead = Byte(text[0]);
  if (text.substr(0, 2) == "\xC0\x80") return {2, true};
  const std::size_t wanted = Length_behind(lead);
  std::size_t length = 1;
  while (length < wanted && length < text.size() && (Byte(text[length]) & 0xC0U) == 0x80U &&
         (length > 1 || Go_together(lead, Byte(text[1]))))
    ++length;
  return {length, length == wanted};
}

}  // namespace

const char* Modified_utf8::Of(std::string_view text) {
  if (Is_plain(text)) {
    buffer_.assign(text);
    return buffer_.c_str();
  }
  buffer_.clear();
  while (!text.empty()) {
    const auto [length, whole] = First_sequence(text);
    if (!whole) {
      Append_in_three_bytes(replacement);
    } else if (length == 4) {
      const char32_t beyond = ((Byte(text[0]) & 0x07U) << 18U | (Byte(text[1]) & 0x3FU) << 12U |
                               (Byte(text[2]) & 0x3FU) << 6U | (Byte(text[3]) & 0x3FU)) -
                              0x10000U;
      Append_in_three_bytes(0xD800U + (beyond >> 10U));
      Append_in_three_bytes(0xDC00U + (beyond & 0x3FFU));
    } else if (text[0] == '\0') {
      buffer_ += "\xC0\x80";
    } else {
      buffer_.append(text, 0, length);
    }
    text.remove_prefix(length);
  }
  return buffer_.c_str();
}

void Modified_utf8::Append_in_three_bytes(char32_t unit) {
  buffer_ += static_cast<char>(0xE0U | unit >> 12U);
  buffer_ += static_cast<char>(0x80U | (unit >> 6U & 0x3FU));
  buffer_ += static_cast<char>(0x80U | (unit & 0x3FU));
}

}  // namespace gns
