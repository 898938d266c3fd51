#pragma once

#include <cstddef>
#include <vector>

#include "graph/Adjacency.h"
#include "graph/Node_set.h"
#include "graph/Row_array.h"

namespace gns {

/// What a time-limited search has given up: the subgraph spanned by its hard nodes.
struct Left_map {
  std::vector<Node_index> nodes;  ///< the hard nodes, ascending
  Row_array<Node_index> neighs;   ///< parallel: the neighbours of each that are hard as well

  [[nodiscard]] std::size_t size() const { return nodes.size(); }
  [[nodiscard]] bool empty() const { return nodes.empty(); }
};

/// The subgraph of `neighs` spanned by `nodes`, which ascend.
Left_map Spanned_by(std::vector<Node_index> nodes, const Adjacency& neighs);

}  // namespace gns
