#pragma once

#include <cstdint>

#include "graph/Named_graph.h"
#include "search/Clique_vector.h"

namespace gns::parts {

/// Appends the cliques of the nodes at the places from `first` up to `last` of the node order, as a
/// search of all nodes finds them. Reports and polls; throws Xerror_msg if they are more than can
/// be numbered.
void Search_places(const Named_graph& graph, std::uint64_t first, std::uint64_t last,
                   Clique_vector& cliques);

}  // namespace gns::parts
