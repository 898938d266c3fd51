#pragma once

#include <cstdint>
#include <vector>

#include "graph/Node_order.h"
#include "search/Local_graph.h"

namespace gns {

/// The graph in the course of a search: nodes finish one by one, and what is left of a node's
/// neighbourhood is cut out as a local graph.
///
/// A link is kept once, with the end that comes first in the node order; by degree order no node
/// keeps more than sqrt(2 x links) of them.
class Search_graph {
 public:
  /// Undirected; `neighs` must outlive the object.
  Search_graph(const Adjacency& neighs, const Node_order& order);
  /// Directed; `dir_vtx_map` must outlive the object.
  Search_graph(const Dir_vertex_map& dir_vtx_map, const Node_order& order);

  void Finish(Node_index node) { finished_[node] = 1; }
  [[nodiscard]] bool Is_finished(Node_index node) const { return finished_[node] != 0; }

  /// Fills `local` for a node in hand; false if there is no clique of three nodes or more to be
  /// found: no two candidates are linked, or a finished node could join whatever they make.
  bool Cut_out(Node_index node, Local_graph& local);

 private:
  enum class Direction : std::uint8_t { both, out, in };

  [[nodiscard]] bool Directed() const { return !directions_.empty(); }
  template <bool directed>
  [[nodiscard]] Direction Direction_of(std::size_t link) const {
    return directed ? directions_[link] : Direction::both;
  }
  static Direction Reverse(Direction direction);
  static void Enter(Local_graph& local, std::size_t row, std::size_t position, Direction direction);
  [[nodiscard]] bool Is_covered(const Local_graph& local) const;
  [[nodiscard]] bool Closes_no_cycle(Node_index covering, const Local_graph& local) const;
  bool Collect(Node_index node, Local_graph& local);
  template <bool directed>
  bool Link(Local_graph& local) const;
  template <bool directed>
  bool Link_nodes(Local_graph& local) const;
  template <bool directed>
  void Link_excluded(Local_graph& local) const;

  const Adjacency& neighs_;
  Adjacency forward_;                  ///< to the neighbours that come later in the node order
  std::vector<Direction> directions_;  ///< of the links in forward_; empty: undirected
  std::vector<std::uint8_t> finished_;
  std::vector<std::uint32_t> row_of_;  ///< row in the local graph + 1, or 0
  std::vector<Node_index> excluded_;
};

}  // namespace gns
