#pragma once

#include <cstddef>
#include <span>
#include <vector>

#include "graph/Node_set.h"
#include "graph/Row_array.h"

namespace gns {

/// For each node 1..n a row of numbers (of nodes, cliques, communities), all rows one behind the
/// other in one array. One that is moved from has no nodes.
class Row_index {
 public:
  Row_index() = default;

  /// Builds the rows in two passes: `list(enter)` calls enter(node, member) for each member of each
  /// row, the same both times; members stand in a row in the order of entering.
  template <typename List>
  Row_index(Node_index node_count, List list) : starts_(std::size_t{node_count} + 2, 0) {
    list([this](Node_index node, Node_index) { ++starts_[std::size_t{node} + 1]; });
    for (std::size_t i = 1; i < starts_.size(); ++i) starts_[i] += starts_[i - 1];
    members_.resize(starts_.back());
    std::vector<std::size_t> place(starts_.begin(), starts_.end() - 1);
    list([&](Node_index node, Node_index member) { members_[place[node]++] = member; });
  }

  [[nodiscard]] Node_span operator[](Node_index node) const {
    return {members_.data() + starts_[node], starts_[node + 1] - starts_[node]};
  }
  [[nodiscard]] Node_index Node_count() const {
    return static_cast<Node_index>(starts_.empty() ? 0 : starts_.size() - 2);
  }
  /// Number of members in all rows together.
  [[nodiscard]] std::size_t size() const { return members_.size(); }
  /// The rows behind each other: that of node v from Starts()[v] up to Starts()[v + 1]; row 0 is
  /// empty.
  [[nodiscard]] std::span<const std::size_t> Starts() const { return starts_; }
  [[nodiscard]] Node_span Members() const { return members_; }
  /// Position of a node's first member among the members of all rows.
  [[nodiscard]] std::size_t Start(Node_index node) const { return starts_[node]; }

 private:
  std::vector<std::size_t> starts_ = {0, 0};  ///< row of node v: starts_[v] up to starts_[v + 1]
  std::vector<Node_index> members_;
};

/// Tells for each node which of some sets hold it: their positions, ascending. The nodes go up to
/// the greatest member.
Row_index Holders_of_nodes(const Row_array<Node_index>& sets);

}  // namespace gns
