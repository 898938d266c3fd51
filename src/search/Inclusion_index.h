#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "graph/Node_set.h"
#include "graph/Row_array.h"
#include "graph/Row_index.h"

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
    const Node_index rarest = Rarest_of(members);
    if (rarest == 0) return false;
    const std::uint64_t bits = Fold(members);
    std::size_t at = holders_.Start(rarest);
    for (const std::uint32_t set : holders_[rarest])
      if ((bits & ~bits_[at++]) == 0 && counts(set) && Lies_inside(members, sets_[set]))
        return true;
    return false;
  }
  [[nodiscard]] bool Covers(Node_span members) const {
    return Covers(members, [](std::uint32_t) { return true; });
  }

 private:
  template <typename Counts>
  [[nodiscard]] bool Any_set(Counts counts) const {
    for (std::uint32_t set = 0; set < sets_.size(); ++set)
      if (counts(set)) return true;
    return false;
  }
  static std::uint64_t Fold(Node_span members);
  /// The member that the fewest sets hold; 0 if no set holds one of them.
  [[nodiscard]] Node_index Rarest_of(Node_span members) const;

  const Sets& sets_;
  Row_index holders_;                ///< per node: the sets that hold it
  std::vector<std::uint64_t> bits_;  ///< parallel to all rows: the members folded
};

}  // namespace gns
