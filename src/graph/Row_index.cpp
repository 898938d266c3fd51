#include "graph/Row_index.h"

#include <algorithm>

namespace gns {

Row_index Holders_of_nodes(const Row_array<Node_index>& sets) {
  const Node_span members = sets.Values();
  const Node_index greatest = members.empty() ? 0 : *std::ranges::max_element(members);
  return {greatest, [&](auto enter) {
            for (std::size_t set = 0; set < sets.size(); ++set)
              for (const Node_index node : sets[set]) enter(node, static_cast<std::uint32_t>(set));
          }};
}

}  // namespace gns
