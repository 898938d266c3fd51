#pragma once

#include <cstddef>

#include "graph/Adjacency.h"

namespace gns {

/// The part of an undirected graph in which each node has `least_degree` neighbours or more; the
/// rows of the other nodes are empty. Linear in the links.
Adjacency Core_of(const Adjacency& neighs, std::size_t least_degree);

}  // namespace gns
