#pragma once

#include <cstdint>
#include <vector>

#include "intensity/Weighted_cliques.h"

namespace gns {

/// The nodes that k-cliques with a sum of logarithms of `reject_below` or more can hold, at most: a
/// node brings half of its best links, and so do the best of its neighbours.
class Hopeful_nodes {
 public:
  /// `cliques` must outlive the object.
  Hopeful_nodes(const Weighted_cliques& cliques, std::uint32_t k, double reject_below);

  [[nodiscard]] bool operator[](Node_index node) const { return is_hopeful_[node] != 0; }

 private:
  void Compute_gains();
  void Drop_hopeless();
  [[nodiscard]] bool Brings_enough(Node_index node);
  template <typename Keep>
  void Keep_if(Keep keep);

  const Weighted_cliques& cliques_;
  std::uint32_t k_;
  double reject_below_;
  std::vector<Node_index> nodes_;  ///< that are left
  std::vector<char> is_hopeful_;   ///< per node
  std::vector<double> gains_;      ///< per node that is left: half of its best links
  double best_gain_ = 0.0;
  std::vector<double> scratch_;
};

}  // namespace gns
