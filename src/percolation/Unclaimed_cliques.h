#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "percolation/Clique_ranks.h"
#include "percolation/Index_bits.h"
#include "percolation/Prefix_lists.h"
#include "search/Clique_vector.h"

namespace gns {

/// The cliques not yet in a community, for one k after the other.
///
/// The question it answers: which unclaimed cliques share at least t nodes with a given one? It
/// reads the Prefix_lists of that clique's first nodes. Most entries are given up by their
/// signature; members are compared of what is left.
///
/// Rank: an unsigned type that numbers all nodes that some clique holds.
template <typename Rank>
class Unclaimed_cliques {
 public:
  /// `ranks`, of so many nodes, must outlive the object. With `nested` false, no clique lies inside
  /// another.
  Unclaimed_cliques(const Clique_ranks<Rank>& ranks, std::uint32_t node_count, bool nested);

  /// Makes room for questions with t = `least_overlap` (1 or more) and above. Without it, Reset()
  /// does.
  void Make_lists(std::uint32_t least_overlap) { lists_.Make(least_overlap); }

  /// Puts every clique back to unclaimed, for questions with t = `overlap` (1 or more).
  void Reset(std::uint32_t overlap);

  void Claim(Clique_index clique) {
    claimed_[clique / word_bits] |= std::uint64_t{1} << (clique % word_bits);
    lists_.Claim(clique);
  }
  [[nodiscard]] bool Is_unclaimed(Clique_index clique) const {
    return (claimed_[clique / word_bits] >> (clique % word_bits) & 1U) == 0;
  }

  /// Appends the unclaimed cliques that share at least t nodes with `clique`, ascending. All of
  /// them are to be claimed before the next question.
  void Append_neighbours(Clique_index clique, std::vector<Clique_index>& neighbours);

  /// Has the processor fetch what it takes to ask for a clique soon, and for another later.
  void Prefetch(Clique_index soon, Clique_index later) const {
    __builtin_prefetch(ranks_[soon].data());
    ranks_.Prefetch_place(later);
  }

 private:
  using Row = typename Clique_ranks<Rank>::Row;
  using Tail = typename Prefix_lists<Rank>::Tail;
  using Entries = typename Prefix_lists<Rank>::Entries;
  static constexpr std::size_t word_bits = 64;

  Row Lists_to_read(Row row);
  void Sign_tails(Row row);
  void Meet(const Entries& entries, Tail question);
  std::size_t Pass(const Entries& entries, Tail question, Clique_index* passed) const;
  void Append_checked(Row row, std::vector<Clique_index>& neighbours);

  const Clique_ranks<Rank>& ranks_;
  Prefix_lists<Rank> lists_;
  std::uint32_t overlap_ = 0;
  std::vector<std::uint64_t> claimed_;  ///< a bit per clique
  std::uint32_t question_ = 0;
  std::vector<std::uint32_t> met_;        ///< per clique: the question that it was last met in
  std::vector<std::uint32_t> asked_for_;  ///< per node: the last question about a clique with it
  // The next two are as long as they had to be so far.
  std::vector<Clique_index> passed_;      ///< begins with what is left of a list
  std::vector<Clique_index> candidates_;  ///< begins with what is left in a question
  std::size_t candidate_count_ = 0;
  std::vector<Tail> tails_;           ///< of the clique in question, from each of its nodes on
  std::vector<std::uint8_t> marked_;  ///< per node: member of the clique in question
  Index_bits to_sort_;                ///< cliques
};

}  // namespace gns
