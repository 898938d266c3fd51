#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "search/Clique_vector.h"

namespace gns {

/// Calls use(node) for each node that two ascending sets share; yields their number.
template <typename Use>
std::uint32_t For_each_shared(Node_span a, Node_span b, Use use) {
  std::uint32_t shared = 0;
  for (auto i = a.begin(), j = b.begin(); i != a.end() && j != b.end();) {
    const Node_index of_a = *i;
    const Node_index of_b = *j;
    if (of_a == of_b) {
      use(of_a);
      ++shared;
    }
    i += of_a <= of_b ? 1 : 0;
    j += of_b <= of_a ? 1 : 0;
  }
  return shared;
}

/// Finds for each clique, in order, an earlier one that is likely to share many nodes with it: the
/// one that was the last to hold most of its nodes.
class Clique_partners {
 public:
  explicit Clique_partners(Node_index node_count) : last_(std::size_t{node_count} + 1, none) {}

  struct Partner {
    Clique_index clique = 0;
    std::uint32_t shared = 0;  ///< nodes, at least; 0: there is none
  };
  Partner Of(Clique_index clique, Node_span members);

 private:
  static constexpr Clique_index none = static_cast<Clique_index>(-1);

  std::vector<Clique_index> last_;  ///< per node: the last clique that held it
  std::vector<Clique_index> seen_;
};

}  // namespace gns
