#include "foundation/text/Json_text.h"

#include <cmath>

#include "foundation/text/Number_text.h"
#include "foundation/text/Utf8.h"

namespace gns {

namespace {

void Append_json_escape(char c, std::string& json) {
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

bool Append_json(std::string_view text, std::string& out) {
  constexpr unsigned char first_printable = 0x20;
  out += '"';
  const bool whole = Append_escaped(
      text, out,
      [](char c) {
        return static_cast<unsigned char>(c) >= first_printable && c != '"' && c != '\\' &&
               c != 0x7F;
      },
      Append_json_escape);
  out += '"';
  return whole;
}

std::string Json_string(std::string_view text) {
  std::string json;
  Append_json(text, json);
  return json;
}

std::string Json_number(double value) {
  if (!std::isfinite(value)) return "null";
  std::string json;
  Append_number(value, json);
  return json;
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
