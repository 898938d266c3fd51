#pragma once

#include <cstdint>
#include <vector>

#include "graph/Adjacency.h"
#include "graph/Named_graph.h"
#include "graph/Node_order.h"
#include "graph/Vertex_map.h"

namespace gns {

/// Of a link, as seen from one of its ends.
enum class Direction : std::uint8_t { both, out, in };

inline Direction Reverse(Direction direction) {
  if (direction == Direction::both) return direction;
  return direction == Direction::out ? Direction::in : Direction::out;
}

/// The graph as searches need it, the same for all of them; nothing changes it.
///
/// A link is kept once, with the end that comes first in the node order; by degree order no node
/// keeps more than sqrt(2 x links) of them.
class Search_graph {
 public:
  /// Undirected; `neighs` must outlive the object.
  Search_graph(const Adjacency& neighs, const Node_order& order);
  /// Directed; `dir_vtx_map` must outlive the object.
  Search_graph(const Dir_vertex_map& dir_vtx_map, const Node_order& order);

  [[nodiscard]] Node_index Node_count() const { return neighs_.Node_count(); }
  [[nodiscard]] bool Directed() const { return !directions_.empty(); }
  [[nodiscard]] const Adjacency& All_neighs() const { return neighs_; }
  [[nodiscard]] Node_span Neighs(Node_index node) const { return neighs_[node]; }
  /// The neighbours that come later in the node order.
  [[nodiscard]] Node_span Forward(Node_index node) const { return forward_[node]; }
  /// Position of the first link to these among all that are kept.
  [[nodiscard]] std::size_t First_link(Node_index node) const { return forward_.Start(node); }
  /// Of a link of a directed graph, as seen from the end that keeps it.
  [[nodiscard]] Direction Direction_of(std::size_t link) const { return directions_[link]; }

 private:
  const Adjacency& neighs_;
  Adjacency forward_;
  std::vector<Direction> directions_;  ///< of the links in forward_; empty: undirected
};

/// That of a graph of either kind, which must outlive it.
Search_graph Search_graph_of(const Named_graph& graph, const Node_order& order);

}  // namespace gns
