#pragma once

#include <cstdint>
#include <vector>

#include "graph/Index_links.h"
#include "graph/Link_map.h"
#include "graph/Named_graph.h"
#include "graph/Node_names.h"
#include "graph/Vertex_map.h"

namespace gns {

/// What stands here polls as a long stage does.

/// Numbers the nodes and turns links between names into links between indices.
///
/// Indices are given from 1 on in the order in which the walk over `links` meets the names, first
/// name before second. Unless `directed`, both directions of a link fall on one key, smaller index
/// first, and their weights add up. Linear in the links. Yields for each node, from 1 on, the
/// number of its name in `links`.
std::vector<std::uint32_t> Convert_s_links(Index_links& index_links, Node_names& node_names,
                                           const Link_map& links, bool directed);

/// Builds the undirected graph from keys with the smaller index first. Throws Xerror_msg if a link
/// stands there in both directions, or leads from a node to itself.
void Vtx_map_from_link_map(Vertex_map& vtx_map, const Index_links& index_links);

/// Builds the directed graph from (from, to) keys.
void Dir_vtx_map_from_link_map(Dir_vertex_map& dir_vtx_map, const Index_links& index_links);

/// Builds the one that goes with the links.
void Make_vertices(Named_graph& graph);

}  // namespace gns
