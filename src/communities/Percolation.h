#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "communities/Communities.h"
#include "communities/Unclaimed_cliques.h"
#include "search/Clique_vector.h"

namespace gns {

/// k-clique percolation on maximal cliques (G. Palla, I. Derényi, I. Farkas, T. Vicsek, Nature 435,
/// 2005): cliques that share at least k - 1 nodes are adjacent, and a community is a connected
/// group of cliques with at least one of k nodes or more.
///
/// Meant to be asked for k descending: what the k before gave is used again, since a community at k
/// lies inside one at k - 1. Any order gives the same results.
class Percolation {
 public:
  /// Cliques at and behind `exact_clique_count` are approximate. `cliques` must outlive the object.
  Percolation(const Clique_vector& cliques, std::uint32_t exact_clique_count);

  /// The communities at k. The reference holds until the next call.
  const Communities& At(std::uint32_t k);

 private:
  struct Community {
    std::size_t first_clique;
    std::size_t last_clique;
    bool approximate;
  };

  void Collect_cliques(std::uint32_t k);
  void Claim_from(std::size_t first);
  void Gather(const Community& community, const Communities& before, Communities& result);

  const Clique_vector& cliques_;
  std::uint32_t exact_clique_count_;
  Unclaimed_cliques unclaimed_;
  std::vector<Clique_index> claimed_;     ///< in claim order, community behind community
  std::vector<Community> found_;          ///< in order of discovery
  Communities communities_;
};

}  // namespace gns
