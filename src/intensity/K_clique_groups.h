#pragma once

#include <algorithm>
#include <cstddef>
#include <numeric>
#include <vector>

#include "intensity/K_cliques.h"

namespace gns {

/// Groups of k-cliques, each known by its first one.
class K_clique_groups {
 public:
  explicit K_clique_groups(std::size_t count) : parents_(count) {
    std::iota(parents_.begin(), parents_.end(), 0);
  }

  K_clique_index First_of(K_clique_index k_clique) {
    while (parents_[k_clique] != k_clique)
      k_clique = parents_[k_clique] = parents_[parents_[k_clique]];
    return k_clique;
  }

  void Unite(K_clique_index a, K_clique_index b) {
    a = First_of(a);
    b = First_of(b);
    parents_[std::max(a, b)] = std::min(a, b);
  }

 private:
  std::vector<K_clique_index> parents_;
};

}  // namespace gns
