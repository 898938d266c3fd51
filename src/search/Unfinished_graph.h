#pragma once

#include <cstdint>
#include <vector>

#include "search/Local_graph.h"
#include "search/Search_graph.h"

namespace gns {

/// The graph in the course of one search: nodes finish one by one, and what is left of a node's
/// neighbourhood is cut out as a local graph.
class Unfinished_graph {
 public:
  /// No node has finished. `graph` must outlive the object.
  explicit Unfinished_graph(const Search_graph& graph)
      : graph_(graph),
        finished_(std::size_t{graph.Node_count()} + 1, 0),
        row_of_(std::size_t{graph.Node_count()} + 1, 0) {}

  void Finish(Node_index node) { finished_[node] = 1; }
  [[nodiscard]] bool Is_finished(Node_index node) const { return finished_[node] != 0; }

  /// Fills `local` for a node in hand; false if there is no clique of three nodes or more to be
  /// found: no two candidates are linked, or a finished node could join whatever they make.
  bool Cut_out(Node_index node, Local_graph& local);

 private:
  template <bool directed>
  [[nodiscard]] Direction Direction_of(std::size_t link) const {
    return directed ? graph_.Direction_of(link) : Direction::both;
  }
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

  const Search_graph& graph_;
  std::vector<std::uint8_t> finished_;
  std::vector<std::uint32_t> row_of_;  ///< row in the local graph + 1, or 0
  std::vector<Node_index> excluded_;
};

}  // namespace gns
