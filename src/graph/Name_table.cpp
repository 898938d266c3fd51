#include "graph/Name_table.h"

#include <limits>
#include <stdexcept>

namespace gns {

std::uint32_t Name_table::Add(std::string_view name) {
  if (size() == std::numeric_limits<std::uint32_t>::max() - 1)
    throw std::length_error("more distinct node names than 32 bits can number");
  bytes_.append(name.data(), name.size());
  ends_.push_back(bytes_.size());
  return size() - 1;
}

void Name_table::Reserve(std::uint32_t names, std::size_t bytes) {
  ends_.Room_for(names);
  bytes_.Room_for(bytes);
}

}  // namespace gns
