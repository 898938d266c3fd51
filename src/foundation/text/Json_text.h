#pragma once

#include <string>
#include <string_view>

namespace gns {

/// A text as a string of JSON, with its quotes. Bytes that are no UTF-8 become U+FFFD, since JSON
/// has no other texts.
std::string Json_string(std::string_view text);
/// Appends the same; false if there were such bytes.
bool Append_json(std::string_view text, std::string& out);

/// A number with what it needs of 17 digits; null for what JSON has no number for.
std::string Json_number(double value);

/// Puts together an object or an array of JSON, part by part, on one line.
class Json_list {
 public:
  enum class Kind { object, array };
  explicit Json_list(Kind kind) : kind_(kind) {}

  /// `value` is JSON itself.
  Json_list& Add(std::string_view key, const std::string& value);
  Json_list& Add(const std::string& value);
  [[nodiscard]] std::string Text() const;

 private:
  Kind kind_;
  std::string inside_;
};

}  // namespace gns
