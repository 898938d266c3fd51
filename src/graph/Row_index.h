#pragma once

#include <algorithm>
#include <cstddef>
#include <span>
#include <vector>

#include "foundation/memory/Growing_array.h"
#include "graph/Node_set.h"
#include "graph/Row_array.h"

namespace gns {

/// For each node 1..n a row of numbers (of nodes, cliques, communities), all rows one behind the
/// other in one array. One that is moved from has no nodes.
class Row_index {
 public:
  Row_index() { Zeros(2, starts_); }
  /// Rows that others hold, as Starts() and Members() tell them; these outlive it.
  static Row_index Looking_at(std::span<const std::size_t> starts, Node_span members) {
    Row_index rows;
    rows.starts_ = Growing_array<std::size_t>::Looking_at(starts);
    rows.members_ = Growing_array<Node_index>::Looking_at(members);
    return rows;
  }

  /// Builds the rows in two passes: `list(enter)` calls enter(node, member) for each member of each
  /// row, the same both times; members stand in a row in the order of entering.
  template <typename List>
  Row_index(Node_index node_count, List list) {
    const std::size_t rows = std::size_t{node_count} + 1;
    std::size_t* const starts = Zeros(rows + 1, starts_);
    list([starts](Node_index node, Node_index) { ++starts[std::size_t{node} + 1]; });
    for (std::size_t i = 1; i <= rows; ++i) starts[i] += starts[i - 1];
    Node_index* const members = members_.Room_for(starts[rows]);
    members_.Grew(starts[rows]);
    std::vector<std::size_t> place(starts, starts + rows);
    list([&](Node_index node, Node_index member) { members[place[node]++] = member; });
  }

  /// Builds rows of some members of others, about `count` in all, in one pass and in their order:
  /// `choice(node)` yields for each node a test of its members.
  template <typename Choice>
  static Row_index Chosen_of(const Row_index& all, std::size_t count, Choice choice) {
    Row_index chosen;
    chosen.starts_.Reserve(all.starts_.size());
    chosen.members_.Reserve(count + all.Longest_row());
    for (Node_index node = 1; node <= all.Node_count(); ++node) {
      const Node_span row = all[node];
      const auto is_chosen = choice(node);
      // Each is written where the next chosen one goes, and stays if it is: no branch to guess.
      Node_index* const room = chosen.members_.Room_for(row.size());
      std::size_t length = 0;
      for (const Node_index member : row) {
        room[length] = member;
        length += is_chosen(member) ? 1 : 0;
      }
      chosen.members_.Grew(length);
      chosen.starts_.push_back(chosen.members_.size());
    }
    return chosen;
  }

  [[nodiscard]] Node_span operator[](Node_index node) const {
    return {members_.data() + starts_[node], starts_[node + 1] - starts_[node]};
  }
  [[nodiscard]] Node_index Node_count() const {
    return static_cast<Node_index>(starts_.size() == 0 ? 0 : starts_.size() - 2);
  }
  /// Number of members in all rows together.
  [[nodiscard]] std::size_t size() const { return members_.size(); }
  /// The rows behind each other: that of node v from Starts()[v] up to Starts()[v + 1]; row 0 is
  /// empty.
  [[nodiscard]] std::span<const std::size_t> Starts() const { return starts_.Values(); }
  [[nodiscard]] Node_span Members() const { return members_.Values(); }
  /// Position of a node's first member among the members of all rows.
  [[nodiscard]] std::size_t Start(Node_index node) const { return starts_[node]; }

 private:
  static std::size_t* Zeros(std::size_t count, Growing_array<std::size_t>& array) {
    std::size_t* const values = array.Room_for(count);
    std::fill_n(values, count, 0);
    array.Grew(count);
    return values;
  }

  [[nodiscard]] std::size_t Longest_row() const {
    std::size_t longest = 0;
    for (Node_index node = 1; node <= Node_count(); ++node)
      longest = std::max(longest, (*this)[node].size());
    return longest;
  }

  Growing_array<std::size_t> starts_;  ///< row of node v: starts_[v] up to starts_[v + 1]
  Growing_array<Node_index> members_;
};

/// Tells for each node which of some sets hold it: their positions, ascending. The nodes go up to
/// the greatest member.
Row_index Holders_of_nodes(const Row_array<Node_index>& sets);

}  // namespace gns
