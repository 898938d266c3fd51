#pragma once

#include <cstdint>
#include <vector>

#include "graph/Node_set.h"

namespace gns {

/// Sorts pairs lexicographically, stably, in time linear in pairs and keys.
///
/// Every member of a pair is below `key_limit`. `weights` is empty or parallel to `pairs` and moves
/// along. Polls as a long stage does. Needs a second copy of both arrays while it works.
void Sort_pairs(std::vector<Index_pair>& pairs, std::vector<double>& weights,
                std::uint32_t key_limit);

/// Makes sorted pairs unique: the weight of a pair becomes the sum, from 0.0 on, of the weights of
/// its occurrences in their order. `weights` is empty or parallel to `pairs`. Polls likewise.
void Fold_equal_pairs(std::vector<Index_pair>& pairs, std::vector<double>& weights);

}  // namespace gns
