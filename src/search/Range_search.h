#pragma once

#include <cstddef>
#include <span>

#include "graph/Node_order.h"
#include "search/Clique_vector.h"
#include "search/Node_search.h"
#include "search/Search_range.h"

namespace gns {

/// Searches ranges of the node order without a time limit. What is found for a node depends on the
/// nodes in front of it being finished, not on what was found for them: ranges that are searched
/// apart yield, one behind the other, what a search of all nodes does, once slices are joined.
class Range_search {
 public:
  /// `search` is a new one, and has the order; both must outlive the object.
  Range_search(Sliced_node_search& search, const Node_order& order)
      : search_(search), order_(order) {}

  /// Appends the cliques of a range, which lies behind those searched before, or is a slice of the
  /// same node. Polls.
  void Find(const Search_range& range, Clique_vector& cliques);

  /// Appends what all slices of a node have found, of which `range` is one: no range behind was
  /// searched by this object. Polls.
  void Join(const Search_range& range, std::span<const Clique_vector* const> slices,
            Clique_vector& cliques);

 private:
  void Finish_up_to(std::size_t place);

  Sliced_node_search& search_;
  const Node_order& order_;
  std::size_t finished_ = 0;  ///< nodes, the first ones of the order
};

}  // namespace gns
