#pragma once

#include <cstdint>
#include <vector>

#include "percolation/Clique_ranks.h"

namespace gns {

/// Where each node is to stand in signatures of so many positions: nodes that share one should
/// seldom stand in cliques together. Then a clique loses few of its own nodes to collisions, and
/// two cliques of the same part of the network seldom seem to share a node that they don't. A
/// greedy colouring of nodes, frequent ones first, by what a sample of the cliques tells.
template <typename Rank>
std::vector<std::uint8_t> Signature_positions(const Clique_ranks<Rank>& cliques,
                                              std::uint32_t node_count, unsigned positions);

}  // namespace gns
