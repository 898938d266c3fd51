#pragma once

#include <cstdint>
#include <span>
#include <vector>

#include "search/Clique_vector.h"

namespace gns {

/// Groups cliques that are alike, for a search among very many of them in a dense core.
///
/// The nodes are parted into g groups. Two cliques that differ by fewer than g nodes are equal in
/// at least one group (multi-index hashing: M. Norouzi, A. Punjani, D. J. Fleet, CVPR 2012). So for
/// each group there is a bucket for each set of nodes that some clique has in it, and of the
/// cliques that differ by fewer than g nodes from a given one each is in one of its g buckets or
/// more. Memory: 4 bytes per clique, group and number of groups.
class Alike_buckets {
 public:
  /// The numbers of groups there are buckets for: fewer groups make smaller buckets.
  static constexpr unsigned splits[] = {8, 16};

  /// `turns` numbers the nodes, frequent ones apart from each other modulo 256.
  void Build(const Clique_vector& cliques, std::span<const std::uint32_t> turns);
  [[nodiscard]] bool Built() const { return !buckets_.empty(); }

  /// Number of all buckets.
  [[nodiscard]] std::uint32_t Count() const { return count_; }
  /// The buckets of a clique in all groups of all splits.
  [[nodiscard]] std::span<const std::uint32_t> Of(Clique_index clique) const {
    return {buckets_.data() + std::size_t{clique} * per_clique, per_clique};
  }
  /// Those of one split: an index into `splits`.
  [[nodiscard]] std::span<const std::uint32_t> Of(Clique_index clique, unsigned split) const {
    return Of(clique).subspan(split == 0 ? 0 : splits[0], splits[split]);
  }

 private:
  static constexpr unsigned per_clique = splits[0] + splits[1];

  std::vector<std::uint32_t> buckets_;
  std::uint32_t count_ = 0;
};

}  // namespace gns
