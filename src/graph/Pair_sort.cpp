#include "graph/Pair_sort.h"

#include <cstddef>

#include "control/Run_control.h"

namespace gns {

namespace {

/// One stable counting pass by the member `key` of the pairs.
void Scatter_by(Node_index Index_pair::*key, std::vector<Index_pair>& pairs,
                std::vector<double>& weights, std::uint32_t key_limit) {
  std::vector<std::size_t> place(std::size_t{key_limit} + 1, 0);
  for (const Index_pair& pair : pairs) {
    external_control::Check_inside_long_stage();
    ++place[std::size_t{pair.*key} + 1];
  }
  for (std::size_t i = 1; i < place.size(); ++i) place[i] += place[i - 1];

  std::vector<Index_pair> sorted(pairs.size());
  std::vector<double> sorted_weights(weights.size());
  for (std::size_t i = 0; i < pairs.size(); ++i) {
    external_control::Check_inside_long_stage();
    const std::size_t to = place[pairs[i].*key]++;
    sorted[to] = pairs[i];
    if (!weights.empty()) sorted_weights[to] = weights[i];
  }
  pairs.swap(sorted);
  weights.swap(sorted_weights);
}

}  // namespace

void Sort_pairs(std::vector<Index_pair>& pairs, std::vector<double>& weights,
                std::uint32_t key_limit) {
  Scatter_by(&Index_pair::second, pairs, weights, key_limit);
  Scatter_by(&Index_pair::first, pairs, weights, key_limit);
}

void Fold_equal_pairs(std::vector<Index_pair>& pairs, std::vector<double>& weights) {
  std::size_t kept = 0;
  for (std::size_t i = 0; i < pairs.size(); ++i) {
    external_control::Check_inside_long_stage();
    const bool repeated = kept > 0 && pairs[i] == pairs[kept - 1];
    if (!repeated) pairs[kept++] = pairs[i];
    if (!weights.empty()) weights[kept - 1] = (repeated ? weights[kept - 1] : 0.0) + weights[i];
  }
  pairs.resize(kept);
  if (!weights.empty()) weights.resize(kept);
}

}  // namespace gns
