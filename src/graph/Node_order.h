#pragma once

#include <string>
#include <vector>

#include "graph/Named_graph.h"
#include "graph/Vertex_map.h"

namespace gns {

/// The order in which a search takes the nodes: by number of neighbours ascending, among equals by
/// index ascending.
using Node_order = std::vector<Node_index>;

/// That of a graph of either kind, all neighbours counting.
Node_order Order_of(const Named_graph& graph);

void Sort_Vtx_map(Node_order& order, const Vertex_map& vtx_map);

/// The same for a directed graph; `flag` tells which neighbours count: "Neighs", "Ineighs" or
/// "Oneighs". Any other flag throws Xerror_msg and leaves `order` as it was.
void Sort_dir_vtx_map(Node_order& order, const Dir_vertex_map& dir_vtx_map,
                      const std::string& flag);

}  // namespace gns
