#pragma once

#include <cstddef>

#include "graph/Node_order.h"
#include "search/Clique_vector.h"
#include "search/Node_search.h"

namespace gns {

/// Searches ranges of the node order without a time limit. What is found for a node depends on the
/// nodes in front of it being finished, not on what was found for them: ranges that are searched
/// apart yield, one behind the other, what a search of all nodes does.
class Range_search {
 public:
  /// `search` is a new one, and has the order; both must outlive the object.
  Range_search(Node_search& search, const Node_order& order) : search_(search), order_(order) {}

  /// Appends the cliques of the nodes at the places from `first` up to `last` of the order, which
  /// lies behind the ranges searched before. Polls.
  void Find(std::size_t first, std::size_t last, Clique_vector& cliques);

 private:
  Node_search& search_;
  const Node_order& order_;
  std::size_t finished_ = 0;  ///< nodes, the first ones of the order
};

}  // namespace gns
