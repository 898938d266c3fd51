#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "search/Clique_vector.h"

namespace gns {

/// Finds for each clique, in order, an earlier one that is likely to share many nodes with it: the
/// one that was the last to hold most of its nodes.
class Clique_partners {
 public:
  Clique_partners(Node_index node_count, std::size_t clique_count)
      : last_(std::size_t{node_count} + 1, none), votes_(clique_count, 0) {}

  struct Partner {
    Clique_index clique = 0;
    std::uint32_t shared = 0;  ///< nodes, at least so many; 0: there is none
  };
  Partner Of(Clique_index clique, Node_span members);

  /// Calls use(node) for each of the nodes that the partner found last is known to share.
  template <typename Use>
  void For_each_shared(Node_span members, const Partner& partner, Use use) const {
    for (std::size_t i = 0; i < members.size(); ++i)
      if (before_[i] == partner.clique) use(members[i]);
  }

 private:
  static constexpr Clique_index none = static_cast<Clique_index>(-1);

  std::vector<Clique_index> last_;    ///< per node: the last clique that held it
  std::vector<Clique_index> before_;  ///< per member of the clique asked for: what `last_` was
  std::vector<std::uint32_t> votes_;  ///< per clique: members whose last one it was
};

}  // namespace gns
