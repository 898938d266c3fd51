#include "foundation/Text_fields.h"

namespace gns {

void Skip_space(std::string_view& text) {
  std::size_t start = 0;
  while (start < text.size() && Is_space(text[start])) ++start;
  text.remove_prefix(start);
}

std::string_view Extract_word(std::string_view& text) {
  Skip_space(text);
  std::size_t length = 0;
  while (length < text.size() && !Is_space(text[length])) ++length;
  const std::string_view word = text.substr(0, length);
  text.remove_prefix(length);
  return word;
}

std::string_view Trimmed(std::string_view text, std::string_view characters) {
  const std::size_t first = text.find_first_not_of(characters);
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(characters) - first + 1);
}

std::string trim(std::string_view text, std::string_view characters) {
  return std::string(Trimmed(text, characters));
}

}  // namespace gns
