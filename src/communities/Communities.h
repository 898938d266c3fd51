#pragma once

#include <cstdint>

#include "graph/Node_set.h"
#include "graph/Row_array.h"
#include "search/Clique_vector.h"

namespace gns {

/// The communities at one k; position i of each part belongs to community i. Exact communities
/// (no approximate clique inside) come first.
struct Communities {
  Row_array<Node_index> coms;           ///< members, ascending
  Row_array<Index_pair> com_links;      ///< smaller index first
  Row_array<Clique_index> com_cliques;  ///< in claim order; empty with the intensity method
  std::uint32_t exact_com_count = 0;

  [[nodiscard]] std::size_t size() const { return coms.size(); }
};

}  // namespace gns
