#pragma once

#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <span>
#include <vector>

#include "vorlane/rows.h"

namespace gns {

/// Index of a node: 1 up to the number of nodes; there is no node 0.
using Node_index = vorlane::Node;

/// A pair of node indices.
using Index_pair = vorlane::Node_pair;

/// Sorted members of a node set that lives elsewhere.
using Node_span = std::span<const Node_index>;

/// An ordered set of node indices, held as one ascending array.
///
/// Sets compare lexicographically by their ascending members.
class Node_set {
 public:
  using const_iterator = std::vector<Node_index>::const_iterator;

  Node_set() = default;
  /// From members in any order, repeats allowed.
  Node_set(std::initializer_list<Node_index> members);
  /// From members that already ascend without repeats.
  static Node_set From_sorted(Node_span members);

  bool insert(Node_index node);  ///< false if it was a member already
  bool erase(Node_index node);   ///< false if it was no member
  void clear() { members_.clear(); }
  [[nodiscard]] bool contains(Node_index node) const;
  [[nodiscard]] std::size_t size() const { return members_.size(); }
  [[nodiscard]] bool empty() const { return members_.empty(); }
  [[nodiscard]] const_iterator begin() const { return members_.begin(); }
  [[nodiscard]] const_iterator end() const { return members_.end(); }
  [[nodiscard]] Node_span span() const { return members_; }

  auto operator<=>(const Node_set&) const = default;

 private:
  std::vector<Node_index> members_;
};

/// True if every member of `inner` is in `outer`; both ascend. Linear in both sizes.
bool Lies_inside(Node_span inner, Node_span outer);

/// Number of nodes that two ascending sequences share. Linear in both sizes.
std::size_t Count_shared(Node_span a, Node_span b);

}  // namespace gns
