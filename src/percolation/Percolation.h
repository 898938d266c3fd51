#pragma once

#include <cstdint>
#include <memory>

#include "communities/Communities.h"
#include "percolation/Claim_walk.h"
#include "percolation/Community_contents.h"
#include "search/Clique_vector.h"

namespace gns {

/// k-clique percolation on maximal cliques (G. Palla, I. Derényi, I. Farkas, T. Vicsek, Nature 435,
/// 2005): cliques that share at least k - 1 nodes are adjacent, and a community is a connected
/// group of cliques with at least one of k nodes or more.
///
/// Meant to be asked for k descending: a community at k + 1 lies inside one at k, and what was
/// found for it is used again. Any order of k gives the same results.
class Percolation {
 public:
  /// See Claim_walk. `cliques` must outlive the object.
  Percolation(const Clique_vector& cliques, std::uint32_t exact_clique_count, bool nested);
  ~Percolation() { Leave_communities(); }
  Percolation(const Percolation&) = delete;
  Percolation& operator=(const Percolation&) = delete;

  /// The communities at k, which are not touched any more. Polls the stop flag as a long stage
  /// does.
  std::shared_ptr<const Communities> At(std::uint32_t k);

  /// The two halves of At(), for several workers: each claims cliques by a walk of its own, this
  /// one or a fellow of it, and what they have claimed is asked for its communities by one thread
  /// at a time.
  [[nodiscard]] Claim_walk& Walk() { return walk_; }
  void Expect_fellows() { has_fellows_ = true; }
  std::shared_ptr<const Communities> Contents(std::uint32_t k, const Claimed_cliques& claimed);

  /// From here on the links of communities are given up once the next k has been asked for, though
  /// others hold the communities, and must not be read. For those who want the rest only.
  void Give_up_links() { gives_up_links_ = true; }

 private:
  void Leave_communities();
  void Collect(const Claimed_cliques& claimed, bool approximate, Communities& result);

  Claim_walk walk_;
  Community_contents contents_;
  std::uint32_t last_k_ = 0;  ///< 0: communities_ is empty
  std::shared_ptr<Communities> communities_ = std::make_shared<Communities>();
  bool gives_up_links_ = false;
  bool has_fellows_ = false;
};

}  // namespace gns
