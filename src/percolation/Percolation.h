#pragma once

#include <cstdint>
#include <memory>
#include <variant>
#include <vector>

#include "communities/Communities.h"
#include "percolation/Community_contents.h"
#include "percolation/Unclaimed_cliques.h"
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
  /// Cliques at and behind `exact_clique_count` are approximate. `nested` tells that a clique may
  /// lie inside another: then one of k - 1 nodes can join at k. `cliques` must outlive the object.
  Percolation(const Clique_vector& cliques, std::uint32_t exact_clique_count, bool nested);
  ~Percolation() { Leave_communities(); }
  Percolation(const Percolation&) = delete;
  Percolation& operator=(const Percolation&) = delete;

  /// The communities at k, which are not touched any more. Polls the stop flag as a long stage
  /// does.
  std::shared_ptr<const Communities> At(std::uint32_t k);

  /// From here on the links of communities are given up once the next k has been asked for, though
  /// others hold the communities, and must not be read. For those who want the rest only.
  void Give_up_links() { gives_up_links_ = true; }

 private:
  struct Claimed_range {
    std::size_t first;
    std::size_t last;
    bool approximate;
  };

  /// Nodes get numbers of 16 bits where these are enough.
  template <typename Rank>
  using Unclaimed = Unclaimed_cliques<Rank>;
  using Any_unclaimed =
      std::variant<std::monostate, Unclaimed<std::uint16_t>, Unclaimed<std::uint32_t>>;

  void Leave_communities();
  void Prepare();
  void Claim_all(std::uint32_t k);
  template <typename Rank>
  void Claim_all(std::uint32_t k, Unclaimed<Rank>& unclaimed);
  template <typename Rank>
  void Claim_community(Clique_index seed, Unclaimed<Rank>& unclaimed);
  template <typename Rank>
  std::size_t Claim_neighbours(Clique_index clique, Unclaimed<Rank>& unclaimed);
  void Collect(bool approximate, Communities& result);

  const Clique_vector& cliques_;
  std::uint32_t exact_clique_count_;
  bool nested_;
  std::size_t largest_ = 0;  ///< size of the largest clique
  Any_unclaimed unclaimed_;  ///< made when it is first needed
  Community_contents contents_;
  std::vector<Clique_index> claimed_;  ///< in claim order, community behind community
  std::vector<Claimed_range> found_;   ///< the communities in order of discovery
  std::uint32_t last_k_ = 0;           ///< 0: communities_ is empty
  std::shared_ptr<Communities> communities_ = std::make_shared<Communities>();
  bool gives_up_links_ = false;
};

}  // namespace gns
