#include "foundation/Text_fields.h"

namespace gns {

std::string_view Trimmed(std::string_view text, std::string_view characters) {
  const std::size_t first = text.find_first_not_of(characters);
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(characters) - first + 1);
}

std::string trim(std::string_view text, std::string_view characters) {
  return std::string(Trimmed(text, characters));
}

}  // namespace gns
