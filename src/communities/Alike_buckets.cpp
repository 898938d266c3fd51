#include "communities/Alike_buckets.h"

#include <algorithm>
#include <array>
#include <utility>

#include "control/Clique_find_ext_cont.h"

namespace gns {

namespace {

constexpr unsigned word_count = 4;
/// A clique folded into 256 bits. Folding brings cliques nearer to each other, never farther apart.
using Fold = std::array<std::uint64_t, word_count>;

std::vector<Fold> Folds_of(const Clique_vector& cliques, std::span<const std::uint32_t> turns) {
  std::vector<Fold> folds(cliques.size(), Fold{});
  for (std::size_t i = 0; i < cliques.size(); ++i) {
    for (const Node_index node : cliques[i]) {
      const unsigned position = turns[node] % (word_count * 64);
      folds[i][position / 64] |= std::uint64_t{1} << (position % 64);
    }
  }
  return folds;
}

/// The bits of a fold whose position is `group` modulo `groups` (8 or 16), as one number.
std::uint64_t Part_of(const Fold& fold, unsigned groups, unsigned group) {
  std::uint64_t every = 0;
  for (unsigned position = 0; position < 64; position += groups)
    every |= std::uint64_t{1} << position;
  std::uint64_t part = 0;
  for (unsigned w = 0; w < word_count; ++w) part |= ((fold[w] >> group) & every) << w;
  return part;
}

}  // namespace

void Alike_buckets::Build(const Clique_vector& cliques, std::span<const std::uint32_t> turns) {
  const std::vector<Fold> folds = Folds_of(cliques, turns);
  buckets_.resize(cliques.size() * per_clique);
  std::vector<std::pair<std::uint64_t, Clique_index>> parts(cliques.size());
  unsigned column = 0;
  for (const unsigned groups : splits) {
    for (unsigned group = 0; group < groups; ++group, ++column) {
      external_control::Check_inside_long_stage();
      for (Clique_index i = 0; i < cliques.size(); ++i)
        parts[i] = {Part_of(folds[i], groups, group), i};
      std::sort(parts.begin(), parts.end());
      for (std::size_t i = 0; i < parts.size(); ++i) {
        if (i == 0 || parts[i].first != parts[i - 1].first) ++count_;
        buckets_[std::size_t{parts[i].second} * per_clique + column] = count_ - 1;
      }
    }
  }
}

}  // namespace gns
