#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "graph/Adjacency.h"
#include "graph/Node_order.h"
#include "search/Search_graph.h"
#include "search/Search_range.h"

namespace gns {

/// The nodes in the order of a search, and an estimate of the work on each: the square of the
/// number of its candidates, which are its neighbours that come later.
class Node_work {
 public:
  /// `graph` was made with this order; both must outlive the object.
  Node_work(const Search_graph& graph, const Node_order& order) : graph_(graph), order_(order) {}

  [[nodiscard]] const Node_order& Order() const { return order_; }
  [[nodiscard]] const Adjacency& Neighs() const { return graph_.All_neighs(); }
  [[nodiscard]] std::uint64_t Of(Node_index node) const {
    const std::uint64_t candidates = graph_.Forward(node).size();
    return 1 + candidates * candidates;
  }
  /// Of the nodes at the places from `first` up to `last` of the order.
  [[nodiscard]] std::uint64_t Of_range(std::size_t first, std::size_t last) const;

  [[nodiscard]] std::uint64_t Of(const Search_range& range) const;

  /// Those of Ranges_of().
  [[nodiscard]] std::vector<Search_range> Ranges(std::size_t count) const;

 private:
  const Search_graph& graph_;
  const Node_order& order_;
};

}  // namespace gns
