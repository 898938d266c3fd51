#include "search/Left_map.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace gns {

Left_map Spanned_by(std::vector<Node_index> nodes, const Adjacency& neighs) {
  Left_map left;
  left.nodes = std::move(nodes);
  std::vector<Node_index> row;
  for (const Node_index node : left.nodes) {
    row.clear();
    std::ranges::set_intersection(neighs[node], left.nodes, std::back_inserter(row));
    left.neighs.push_back(row);
  }
  return left;
}

}  // namespace gns
