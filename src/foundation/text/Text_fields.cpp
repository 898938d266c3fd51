#include "foundation/text/Text_fields.h"

namespace gns {

std::string Lower_case(std::string_view text) {
  std::string lower(text);
  for (char& c : lower)
    if (c >= 'A' && c <= 'Z') c = static_cast<char>(c - 'A' + 'a');
  return lower;
}

std::string_view Trimmed(std::string_view text, std::string_view characters) {
  const std::size_t first = text.find_first_not_of(characters);
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(characters) - first + 1);
}

std::string trim(std::string_view text, std::string_view characters) {
  return std::string(Trimmed(text, characters));
}

std::string trim(std::string_view text, const Character_set& characters) {
  while (!text.empty() && characters.contains(text.front())) text.remove_prefix(1);
  while (!text.empty() && characters.contains(text.back())) text.remove_suffix(1);
  return std::string(text);
}

}  // namespace gns
