#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <variant>
#include <vector>

#include "percolation/Clique_ranks.h"
#include "percolation/Unclaimed_cliques.h"
#include "search/Clique_vector.h"

namespace gns {

/// The cliques of all communities at one k.
struct Claimed_cliques {
  struct Group {
    std::size_t first;
    std::size_t last;
    bool approximate;
  };

  std::vector<Clique_index> cliques;  ///< in claim order, community behind community
  std::vector<Group> groups;          ///< the communities in order of discovery
};

/// Claims cliques for communities, at one k after the other, each by itself. Cheap if k falls.
///
/// A walk has lists of its own, of 12 bytes per clique and node of its reach (see Prefix_lists);
/// what several of them have in common is made once.
class Claim_walk {
 public:
  /// Cliques at and behind `exact_clique_count` are approximate. `nested` tells that a clique may
  /// lie inside another: then one of k - 1 nodes can join at k. `cliques` must outlive the object.
  Claim_walk(const Clique_vector& cliques, std::uint32_t exact_clique_count, bool nested);

  /// Another walk over the same cliques, for another thread.
  [[nodiscard]] Claim_walk Fellow() const;

  /// Makes what all walks share, from which fellows come. At() does it, too, where it is missing.
  void Prepare();

  /// No k below will be asked for, neither of this walk nor of its fellows: lists reach no further.
  void Expect_last(std::uint32_t last_k) { last_k_ = last_k; }

  /// Takes the memory that the walk needs down to the last k, and fills the lists. Without it, At()
  /// does. Throws std::bad_alloc.
  void Make_lists();

  /// Gives the memory of the lists back; what At() has yielded stays. Another At() makes them anew.
  void Give_up_lists() { unclaimed_.emplace<std::monostate>(); }

  /// About how many bytes a fellow takes.
  [[nodiscard]] std::uint64_t Bytes_of_fellow() const;

  /// The walk at k, valid until the next one. Polls as a long stage does.
  const Claimed_cliques& At(std::uint32_t k);

 private:
  static std::uint32_t Overlap_at(std::uint32_t k) { return k == 1 ? 1 : k - 1; }

  template <typename Rank>
  using Unclaimed = Unclaimed_cliques<Rank>;
  using Any_unclaimed =
      std::variant<std::monostate, Unclaimed<std::uint16_t>, Unclaimed<std::uint32_t>>;

  template <typename Rank>
  Unclaimed<Rank>& Lists_over(const Clique_ranks<Rank>& ranks);
  template <typename Rank>
  void Claim_all(std::uint32_t k, Unclaimed<Rank>& unclaimed);
  template <typename Rank>
  void Claim_community(Clique_index seed, Unclaimed<Rank>& unclaimed);
  template <typename Rank>
  std::size_t Claim_neighbours(Clique_index clique, Unclaimed<Rank>& unclaimed);
  void Tell_work();

  const Clique_vector* cliques_;
  std::uint32_t exact_clique_count_;
  bool nested_;
  std::uint32_t last_k_ = 0;  ///< 0: not known
  std::size_t largest_ = 0;   ///< size of the largest clique
  std::shared_ptr<const Ranked_cliques> ranked_;
  Any_unclaimed unclaimed_;  ///< made when it is first needed
  Claimed_cliques claimed_;
  std::uint32_t untold_work_ = 0;
};

}  // namespace gns
