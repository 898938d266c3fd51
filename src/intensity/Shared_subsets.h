#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "intensity/K_cliques.h"

namespace gns {

/// The (k-1)-subsets of k-cliques, each known by the first k-clique that holds it.
///
/// A hash table that takes about as much memory as the k-cliques themselves. What would not fit is
/// looked at in several parts: each subset belongs to one part, and the k-cliques are gone through
/// once for each part.
class Shared_subsets {
 public:
  /// What is known of a subset; the reference holds until the next call.
  struct Entry {
    K_clique_index k_clique;      ///< the first one that holds the subset
    std::uint32_t left_out : 31;  ///< position in it of the node that is not in the subset
    std::uint32_t refused : 1;    ///< for the caller: the subset joins nothing
  };

  /// `k_cliques` must outlive the object.
  explicit Shared_subsets(const K_cliques& k_cliques);

  [[nodiscard]] std::uint32_t Part_count() const { return part_count_; }
  void Begin_part(std::uint32_t part);

  /// Calls meet(left_out, entry) for each subset of a k-clique that is in this part and was held
  /// by an earlier k-clique, and notes the others. To be called for ascending k-cliques.
  template <typename Meet>
  void Enter(K_clique_index k_clique, Meet meet);

 private:
  static constexpr K_clique_index none = ~K_clique_index{0};

  /// The upper half of a hash chooses the part, the lower bits the slot.
  [[nodiscard]] std::uint32_t Part_of(std::uint64_t hash) const {
    return static_cast<std::uint32_t>(((hash >> 32U) * part_count_) >> 32U);
  }
  void Hash_subsets(Node_span k_clique);
  [[nodiscard]] bool Same_subset(const Entry& entry, Node_span k_clique,
                                 std::uint32_t left_out) const;
  Entry& Find(std::uint64_t hash, K_clique_index k_clique, std::uint32_t left_out);

  const K_cliques& k_cliques_;
  std::uint32_t part_count_;
  std::uint32_t part_ = 0;
  std::vector<Entry> table_;           ///< open addressing; the size is a power of two
  std::vector<std::uint64_t> hashes_;  ///< of the subsets of one k-clique, by the node left out
  std::vector<std::uint64_t> next_hashes_;  ///< of the next k-clique
};

template <typename Meet>
void Shared_subsets::Enter(K_clique_index k_clique, Meet meet) {
  hashes_.swap(next_hashes_);
  if (k_clique + std::size_t{1} < k_cliques_.size()) Hash_subsets(k_cliques_[k_clique + 1]);
  for (std::uint32_t left_out = 0; left_out < hashes_.size(); ++left_out) {
    if (Part_of(hashes_[left_out]) != part_) continue;
    Entry& entry = Find(hashes_[left_out], k_clique, left_out);
    if (entry.k_clique == k_clique) continue;
    meet(left_out, entry);
    entry.k_clique = k_clique;
    entry.left_out = left_out & 0x7fffffffU;
  }
}

}  // namespace gns
