#include "bridge/Modified_utf8.h"

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

bool Continues(std::string_view text, std::size_t first, std::size_t last) {
  return last <= text.size() && std::all_of(text.begin() + first, text.begin() + last,
                                            [](char c) { return (Byte(c) & 0xC0U) == 0x80U; });
}

/// How many bytes the sequence has with which the text begins; 0 if its first byte is broken.
/// Surrogates and the zero of two bytes are sequences like any other.
std::size_t Sequence_length(std::string_view text) {
  const unsigned lead = Byte(text[0]);
  if (lead < 0x80) return 1;
  const unsigned next = text.size() > 1 ? Byte(text[1]) : 0;
  if (lead >= 0xC2 && lead < 0xE0) return Continues(text, 1, 2) ? 2 : 0;
  if (lead >= 0xE0 && lead < 0xF0)
    return (lead > 0xE0 || next >= 0xA0) && Continues(text, 1, 3) ? 3 : 0;
  if (lead >= 0xF0 && lead < 0xF5)
    return (lead > 0xF0 || next >= 0x90) && (lead < 0xF4 || next < 0x90) && Continues(text, 1, 4)
               ? 4
               : 0;
  return lead == 0xC0 && next == 0x80 ? 2 : 0;
}

}  // namespace

const char* Modified_utf8::Of(std::string_view text) {
  if (Is_plain(text)) {
    buffer_.assign(text);
    return buffer_.c_str();
  }
  buffer_.clear();
  while (!text.empty()) {
    const std::size_t length = Sequence_length(text);
    if (length == 0) {
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
    text.remove_prefix(std::max<std::size_t>(length, 1));
  }
  return buffer_.c_str();
}

void Modified_utf8::Append_in_three_bytes(char32_t unit) {
  buffer_ += static_cast<char>(0xE0U | unit >> 12U);
  buffer_ += static_cast<char>(0x80U | (unit >> 6U & 0x3FU));
  buffer_ += static_cast<char>(0x80U | (unit & 0x3FU));
}

}  // namespace gns
