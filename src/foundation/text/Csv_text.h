#pragma once

#include <string>
#include <string_view>

namespace gns {

/// Appends a field of a table of text, in quotes where it has to be (RFC 4180). Bytes stay as they
/// are.
inline void Append_csv(std::string_view field, char separator, std::string& out) {
  const auto needs_quotes = [separator](char c) {
    return c == separator || c == '"' || c == '\r' || c == '\n';
  };
  std::size_t plain = 0;
  while (plain < field.size() && !needs_quotes(field[plain])) ++plain;
  if (plain == field.size()) {
    out.append(field);
    return;
  }
  out += '"';
  for (const char c : field) out.append(c == '"' ? 2 : 1, c);
  out += '"';
}

}  // namespace gns
