#include "foundation/text/Json_text.h"

#include <array>
#include <charconv>
#include <cmath>
#include <cstdint>

namespace gns {

namespace {

/// The length of the character of UTF-8 at the front; 0 if there is none.
std::size_t Character_length(std::string_view text) {
  const auto byte = [&](std::size_t i) { return static_cast<unsigned char>(text[i]); };
  const unsigned char first = byte(0);
  const std::size_t length = first < 0x80 ? 1 : first >= 0xF0 ? 4 : first >= 0xE0 ? 3 : 2;
  if (length == 1) return 1;
  if (first < 0xC2 || first > 0xF4 || text.size() < length) return 0;
  for (std::size_t i = 1; i < length; ++i)
    if ((byte(i) & 0xC0U) != 0x80) return 0;
  const bool too_long = (first == 0xE0 && byte(1) < 0xA0) || (first == 0xF0 && byte(1) < 0x90);
  const bool surrogate = first == 0xED && byte(1) >= 0xA0;
  const bool beyond = first == 0xF4 && byte(1) >= 0x90;
  return too_long || surrogate || beyond ? 0 : length;
}

void Append_escaped(char c, std::string& json) {
  constexpr std::string_view digits = "0123456789abcdef";
  const auto byte = static_cast<unsigned char>(c);
  if (c == '"' || c == '\\')
    json.append(1, '\\').append(1, c);
  else if (byte < 0x20 || byte == 0x7F)
    json.append("\\u00").append(1, digits[byte / 16]).append(1, digits[byte % 16]);
  else
    json += c;
}

}  // namespace

std::string Json_string(std::string_view text) {
  std::string json = "\"";
  while (!text.empty()) {
    const std::size_t length = Character_length(text);
    if (length == 0)
      json += "\xEF\xBF\xBD";
    else if (length == 1)
      Append_escaped(text.front(), json);
    else
      json += text.substr(0, length);
    text.remove_prefix(length == 0 ? 1 : length);
  }
  return json + "\"";
}

std::string Json_number(double value) {
  if (!std::isfinite(value)) return "null";
  constexpr std::size_t enough = 32;
  std::array<char, enough> text{};
  const auto end = std::to_chars(text.data(), text.data() + text.size(), value).ptr;
  return {text.data(), end};
}

Json_list& Json_list::Add(std::string_view key, const std::string& value) {
  return Add(Json_string(key) + ":" + value);
}

Json_list& Json_list::Add(const std::string& value) {
  if (!inside_.empty()) inside_ += ',';
  inside_ += value;
  return *this;
}

std::string Json_list::Text() const {
  return kind_ == Kind::object ? "{" + inside_ + "}" : "[" + inside_ + "]";
}

}  // namespace gns
