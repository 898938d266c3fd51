#pragma once

#include <cstdint>

#include "graph/Node_set.h"
#include "graph/Row_array.h"

namespace gns {

/// Position of a clique in the clique vector.
using Clique_index = std::uint32_t;

/// The cliques in the order of their recording, each an ascending row of node indices.
using Clique_vector = Row_array<Node_index>;

/// Size of the largest clique, 0 for an empty vector.
std::uint32_t Max_clique_size_in_cl_vec(const Clique_vector& cliques);

}  // namespace gns
