#include "intensity/Hopeful_nodes.h"

#include <algorithm>
#include <functional>
#include <limits>
#include <numeric>

namespace gns {

Hopeful_nodes::Hopeful_nodes(const Weighted_cliques& cliques, std::uint32_t k, double reject_below)
    : cliques_(cliques),
      k_(k),
      reject_below_(reject_below),
      is_hopeful_(cliques.Node_count() + std::size_t{1}, 0),
      gains_(is_hopeful_.size()) {
  constexpr std::size_t worth_another_look = 4;  // a share of the nodes
  for (Node_index node = 1; node <= cliques.Node_count(); ++node) {
    if (cliques.Largest_clique_of(node) < k) continue;
    is_hopeful_[node] = 1;
    nodes_.push_back(node);
  }
  if (!(reject_below > -std::numeric_limits<double>::infinity())) return;
  for (;;) {
    const std::size_t before = nodes_.size();
    Compute_gains();
    Drop_hopeless();
    if ((before - nodes_.size()) * worth_another_look <= before) return;
  }
}

void Hopeful_nodes::Compute_gains() {
  best_gain_ = -std::numeric_limits<double>::infinity();
  Keep_if([this](Node_index node) {
    double sum = 0.0;
    std::uint32_t missing = k_ - 1;
    for (const Weighted_cliques::Link_end& end : cliques_.Ranked_links(node)) {
      if (end.clique_size < k_ || is_hopeful_[end.node] == 0) continue;
      sum += end.log;
      if (--missing == 0) break;
    }
    gains_[node] = 0.5 * sum;
    if (missing == 0) best_gain_ = std::max(best_gain_, gains_[node]);
    return missing == 0;
  });
}

void Hopeful_nodes::Drop_hopeless() {
  Keep_if([this](Node_index node) {
    return !(gains_[node] + (k_ - 1) * best_gain_ < reject_below_) && Brings_enough(node);
  });
}

/// As a rule the neighbours with the strongest links are enough.
bool Hopeful_nodes::Brings_enough(Node_index node) {
  scratch_.clear();
  double sum = gains_[node];
  for (const Weighted_cliques::Link_end& end : cliques_.Ranked_links(node)) {
    if (end.clique_size < k_ || is_hopeful_[end.node] == 0) continue;
    scratch_.push_back(gains_[end.node]);
    sum += gains_[end.node];
    if (scratch_.size() == k_ - 1 && !(sum < reject_below_)) return true;
  }
  if (scratch_.size() < k_ - 1) return false;
  const auto last = scratch_.begin() + (k_ - 2);
  std::nth_element(scratch_.begin(), last, scratch_.end(), std::greater<>());
  return !(std::reduce(scratch_.begin(), last + 1, gains_[node]) < reject_below_);
}

template <typename Keep>
void Hopeful_nodes::Keep_if(Keep keep) {
  std::erase_if(nodes_, [&](Node_index node) {
    if (!keep(node)) is_hopeful_[node] = 0;
    return is_hopeful_[node] == 0;
  });
}

}  // namespace gns
