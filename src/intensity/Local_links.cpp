#include "intensity/Local_links.h"

#include <algorithm>

namespace gns {

void Ranked_links::Begin(std::size_t node_count) {
  row_of_.resize(node_count);
  is_in_part_.resize(std::max(is_in_part_.size(), node_count), 0);
  rows_.clear();
}

void Ranked_links::Take_part(const Ranked_links& links, std::span<const std::uint32_t> nodes) {
  Begin(links.Node_count());
  for (const std::uint32_t node : nodes) is_in_part_[node] = 1;
  for (const std::uint32_t node : nodes) {
    const Link_rows::Row row = links[node];
    Make_room(row.nodes.size());
    for (std::size_t i = 0; i < row.nodes.size(); ++i)
      Append(row.nodes[i], row.logs[i], is_in_part_[row.nodes[i]] != 0);
    Close_row_of(node);
  }
  for (const std::uint32_t node : nodes) is_in_part_[node] = 0;
}

}  // namespace gns
