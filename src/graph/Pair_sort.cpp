#include "graph/Pair_sort.h"

#include <cstddef>

#include "control/Polled_resize.h"
#include "control/Run_control.h"

namespace gns {

namespace {

struct Pairs {
  std::vector<Index_pair> pairs;
  std::vector<double> weights;  ///< parallel, or empty
};

/// One stable counting pass by the member `key` of the pairs, into arrays of the same sizes.
void Scatter_by(Node_index Index_pair::*key, const Pairs& from, Pairs& to,
                std::uint32_t key_limit) {
  std::vector<std::size_t> place(std::size_t{key_limit} + 1, 0);
  for (const Index_pair& pair : from.pairs) {
    external_control::Check_inside_long_stage();
    ++place[std::size_t{pair.*key} + 1];
  }
  for (std::size_t i = 1; i < place.size(); ++i) place[i] += place[i - 1];

  for (std::size_t i = 0; i < from.pairs.size(); ++i) {
    external_control::Check_inside_long_stage();
    const std::size_t at = place[from.pairs[i].*key]++;
    to.pairs[at] = from.pairs[i];
    if (!from.weights.empty()) to.weights[at] = from.weights[i];
  }
}

}  // namespace

/// Pairs go to and fro: the second pass writes where they came from.
void Sort_pairs(std::vector<Index_pair>& pairs, std::vector<double>& weights,
                std::uint32_t key_limit) {
  Pairs here;
  here.pairs.swap(pairs);
  here.weights.swap(weights);
  Pairs there;
  external_control::Assign_zeros(there.pairs, here.pairs.size());
  external_control::Assign_zeros(there.weights, here.weights.size());
  Scatter_by(&Index_pair::second, here, there, key_limit);
  Scatter_by(&Index_pair::first, there, here, key_limit);
  pairs.swap(here.pairs);
  weights.swap(here.weights);
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
