#include "intensity/K_clique_tree.h"

#include <algorithm>

#include "control/Run_control.h"

namespace gns {

using external_control::Check_inside_long_stage;

K_clique_tree::K_clique_tree(const K_cliques& k_cliques) : k_cliques_(k_cliques) {
  Compare_neighbours();
  Make_branches();
}

void K_clique_tree::Compare_neighbours() {
  shared_with_previous_.assign(k_cliques_.size(), 0);
  std::vector<std::size_t> begin_at(K(), 0);  // per depth: k-cliques that share so many nodes
  for (std::size_t i = 1; i < k_cliques_.size(); ++i) {
    Check_inside_long_stage();
    const Node_span previous = k_cliques_[i - 1];
    std::uint32_t shared = 0;
    while (previous[shared] == k_cliques_[i][shared]) ++shared;
    shared_with_previous_[i] = shared;
    ++begin_at[shared];
  }
  // A k-clique opens a branch at each depth below those that it shares.
  starts_.assign(K() + std::size_t{1}, 0);
  std::size_t branches = 1;
  for (std::uint32_t depth = 0; depth < K(); ++depth) {
    starts_[depth + 1] = starts_[depth] + branches + 1;
    branches += begin_at[depth];
  }
}

void K_clique_tree::Make_branches() {
  branches_.resize(starts_[K()]);
  std::vector<Index> counts(K(), 0);  // per depth: branches made
  const auto open = [&](std::uint32_t depth, K_clique_index i, Node_index last) {
    const Index child = depth + 1 < K() ? counts[depth + 1] : i;
    branches_[starts_[depth] + counts[depth]++] = {last, child, i};
  };
  const auto count = static_cast<K_clique_index>(k_cliques_.size());
  open(0, 0, 0);
  for (K_clique_index i = 0; i < count; ++i) {
    Check_inside_long_stage();
    const Node_span members = k_cliques_[i];
    largest_node_ = std::max(largest_node_, members.back());
    for (std::uint32_t depth = shared_with_previous_[i] + 1; depth < K(); ++depth)
      open(depth, i, members[depth - 1]);
  }
  for (std::uint32_t depth = 0; depth < K(); ++depth) open(depth, count, 0);
}

}  // namespace gns
