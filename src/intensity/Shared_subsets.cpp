#include "intensity/Shared_subsets.h"

#include <algorithm>
#include <bit>

namespace gns {

namespace {

/// The finalizer of splitmix64.
std::uint64_t Mix(std::uint64_t x) {
  x = (x ^ (x >> 30U)) * 0xbf58476d1ce4e5b9ULL;
  x = (x ^ (x >> 27U)) * 0x94d049bb133111ebULL;
  return x ^ (x >> 31U);
}

std::uint64_t Hash_of(Node_index node) { return Mix(node * 0x9e3779b97f4a7c15ULL); }

constexpr std::size_t small_table = std::size_t{1} << 20U;

}  // namespace

Shared_subsets::Shared_subsets(const K_cliques& k_cliques)
    : k_cliques_(k_cliques), hashes_(k_cliques.K()), next_hashes_(k_cliques.K()) {
  // At most half of the slots are in use when each subset is met once only.
  const std::size_t subsets = k_cliques.size() * k_cliques.K();
  const std::size_t slots =
      std::bit_ceil(std::max(std::min(2 * subsets, small_table), subsets / 2));
  part_count_ = static_cast<std::uint32_t>(2 * subsets / slots + 1);
  table_.resize(slots);
}

void Shared_subsets::Begin_part(std::uint32_t part) {
  part_ = part;
  std::ranges::fill(table_, Entry{none, 0, 0});
  if (!k_cliques_.empty()) Hash_subsets(k_cliques_[0]);
}

/// The hash of a set is the sum over its nodes, mixed: leaving out a node costs a subtraction. The
/// slots are fetched while the k-clique before is looked at.
void Shared_subsets::Hash_subsets(Node_span k_clique) {
  std::uint64_t sum = 0;
  for (std::size_t i = 0; i < k_clique.size(); ++i) sum += next_hashes_[i] = Hash_of(k_clique[i]);
  for (std::uint64_t& hash : next_hashes_) {
    hash = Mix(sum - hash);
    if (Part_of(hash) == part_) __builtin_prefetch(&table_[hash & (table_.size() - 1)], 1);
  }
}

bool Shared_subsets::Same_subset(const Entry& entry, Node_span k_clique,
                                 std::uint32_t left_out) const {
  const Node_span other = k_cliques_[entry.k_clique];
  for (std::size_t i = 0; i + 1 < k_clique.size(); ++i) {
    if (other[i + (i >= entry.left_out ? 1 : 0)] != k_clique[i + (i >= left_out ? 1 : 0)])
      return false;
  }
  return true;
}

/// The entry of a subset, made with the k-clique at hand if there is none.
Shared_subsets::Entry& Shared_subsets::Find(std::uint64_t hash, K_clique_index k_clique,
                                            std::uint32_t left_out) {
  const Node_span members = k_cliques_[k_clique];
  for (std::size_t slot = hash;; ++slot) {
    Entry& entry = table_[slot & (table_.size() - 1)];
    if (entry.k_clique == none) return entry = {k_clique, left_out & 0x7fffffffU, 0};
    if (Same_subset(entry, members, left_out)) return entry;
  }
}

}  // namespace gns
