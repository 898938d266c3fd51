#include "search/Hard_cliques.h"

#include <algorithm>
#include <cstdint>
#include <numeric>
#include <unordered_set>
#include <vector>

#include "control/Run_control.h"

namespace gns {

namespace {

using external_control::Check_inside_long_stage;

/// The rows of `sets` in lexicographic order, each once.
Clique_vector Sorted_unique(const Clique_vector& sets) {
  std::vector<std::uint32_t> order(sets.size());
  std::iota(order.begin(), order.end(), 0U);
  std::sort(order.begin(), order.end(), [&](std::uint32_t a, std::uint32_t b) {
    Check_inside_long_stage();
    return std::ranges::lexicographical_compare(sets[a], sets[b]);
  });
  Clique_vector sorted;
  for (const std::uint32_t set : order)
    if (sorted.empty() || !std::ranges::equal(sorted[sorted.size() - 1], sets[set]))
      sorted.push_back(sets[set]);
  return sorted;
}

/// The cliques recorded so far, found by the hash of their members.
class Recorded_cliques {
 public:
  explicit Recorded_cliques(const Clique_vector& cliques)
      : cliques_(cliques), positions_(cliques.size(), Hash{cliques}, Equal{cliques}) {
    for (std::uint32_t i = 0; i < cliques.size(); ++i) positions_.insert(i);
  }

  /// True if the row at the end of the vector equals an earlier one.
  [[nodiscard]] bool Has_last() const {
    return positions_.contains(static_cast<std::uint32_t>(cliques_.size() - 1));
  }

 private:
  struct Hash {
    const Clique_vector& cliques;
    std::size_t operator()(std::uint32_t i) const {
      std::uint64_t hash = 0;
      for (const Node_index node : cliques[i]) hash = (hash ^ node) * 0x9E3779B97F4A7C15U;
      return hash ^ (hash >> 32U);
    }
  };
  struct Equal {
    const Clique_vector& cliques;
    bool operator()(std::uint32_t a, std::uint32_t b) const {
      return std::ranges::equal(cliques[a], cliques[b]);
    }
  };

  const Clique_vector& cliques_;
  std::unordered_set<std::uint32_t, Hash, Equal> positions_;
};

}  // namespace

void Hard_cliques::Take_from(Clique_vector& cliques, std::size_t first) {
  constexpr std::size_t few = 1024;
  for (std::size_t i = first; i < cliques.size(); ++i) found_.push_back(cliques[i]);
  cliques.Truncate(first);
  if (found_.size() > 2 * distinct_ + few) Drop_repeats();
}

void Hard_cliques::Drop_repeats() {
  found_ = Sorted_unique(found_);
  distinct_ = found_.size();
}

void Hard_cliques::Record(Clique_vector& cliques) {
  Drop_repeats();
  const Recorded_cliques recorded(cliques);
  for (std::size_t i = 0; i < found_.size(); ++i) {
    Check_inside_long_stage();
    cliques.push_back(found_[i]);
    if (recorded.Has_last()) cliques.Truncate(cliques.size() - 1);
  }
}

}  // namespace gns
