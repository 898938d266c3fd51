#pragma once

#include <cstdint>
#include <vector>

#include "search/Clique_vector.h"

namespace gns {

/// The cliques not yet in a community, listed at each of their nodes, for one k after the other.
///
/// The question it answers: which unclaimed cliques share at least t nodes with a given one?
class Unclaimed_cliques {
 public:
  /// `cliques` must outlive the object.
  explicit Unclaimed_cliques(const Clique_vector& cliques);

  /// Puts every clique that can take part at k back to unclaimed.
  void Reset(std::uint32_t k);

  void Claim(Clique_index clique);
  [[nodiscard]] bool Is_unclaimed(Clique_index clique) const {
    return ((claimed_[clique / 64] >> (clique % 64)) & 1U) == 0;
  }

  /// Appends the unclaimed cliques that share at least `overlap` nodes with `clique`, ascending.
  void Append_neighbours(Clique_index clique, std::uint32_t overlap,
                         std::vector<Clique_index>& neighbours);

 private:
  struct Entry {
    std::uint64_t signature;
    Clique_index clique;
    std::uint32_t size;
  };

  void Fill_lists();
  [[nodiscard]] bool Shares(Clique_index clique, std::uint32_t overlap) const;

  const Clique_vector& cliques_;
  std::vector<std::uint64_t> signatures_;  ///< per clique
  std::vector<std::uint64_t> node_bits_;   ///< per node: its bit of the signatures
  std::vector<std::size_t> starts_;        ///< per node: first entry
  std::vector<Entry> entries_;             ///< per node, bigger cliques first
  std::vector<std::uint32_t> lengths_;     ///< per node: entries still to be looked at
  std::vector<std::uint32_t> live_;        ///< per node: unclaimed cliques
  std::vector<std::uint64_t> claimed_;     ///< a bit per clique
  std::vector<std::uint64_t> seen_;        ///< per clique: a mark of the question last met in
  std::vector<std::uint8_t> marked_;       ///< per node: member of the clique in question
  std::vector<Node_index> active_;
};

}  // namespace gns
