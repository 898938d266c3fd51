#pragma once

#include "graph/Vertex_map.h"
#include "search/Clique_vector.h"

namespace gns {

/// Finds all maximal cliques of three nodes or more of an undirected graph.
///
/// A clique is found with that member that comes first in the order of Sort_Vtx_map; cliques stand
/// in that order of nodes, and those of one node in ascending lexicographic order. Keeps the state
/// report up to date and polls the stop flag, which ends the search by an exception.
void Clique_find_ec(Clique_vector& cliques, const Vertex_map& vtx_map);

}  // namespace gns
