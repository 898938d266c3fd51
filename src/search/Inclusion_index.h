#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "graph/Node_set.h"
#include "graph/Row_array.h"

namespace gns {

/// Answers which of many node sets hold all members of a given one.
///
/// A set is listed at each of its members, with its members folded into 64 bits; the shortest list
/// of the members asked for is read. Memory: 12 bytes per set and member.
class Inclusion_index {
 public:
  using Sets = Row_array<Node_index>;

  /// `sets` must outlive the object unchanged.
  explicit Inclusion_index(const Sets& sets);

  /// True if a set that `counts(index)` accepts holds every member of `members`, which ascend. An
  /// equal set holds them, and any set holds none.
  template <typename Counts>
  [[nodiscard]] bool Covers(Node_span members, Counts counts) const {
    if (members.empty()) return Any_set(counts);
    const List list = Shortest_list(members);
    const std::uint64_t bits = Fold(members);
    for (std::size_t at = list.first; at < list.last; ++at)
      if ((bits & ~bits_[at]) == 0 && counts(listed_[at]) &&
          Lies_inside(members, sets_[listed_[at]]))
        return true;
    return false;
  }
  [[nodiscard]] bool Covers(Node_span members) const {
    return Covers(members, [](std::uint32_t) { return true; });
  }

 private:
  struct List {
    std::size_t first;
    std::size_t last;
  };

  template <typename Counts>
  [[nodiscard]] bool Any_set(Counts counts) const {
    for (std::uint32_t set = 0; set < sets_.size(); ++set)
      if (counts(set)) return true;
    return false;
  }
  static std::uint64_t Fold(Node_span members);
  [[nodiscard]] List List_of(Node_index node) const;
  [[nodiscard]] List Shortest_list(Node_span members) const;

  const Sets& sets_;
  std::vector<std::size_t> starts_;    ///< per node: its first entry
  std::vector<std::uint32_t> listed_;  ///< indices of sets, ascending at each node
  std::vector<std::uint64_t> bits_;    ///< parallel: the members folded
};

}  // namespace gns
