#pragma once

#include <cstdint>
#include <map>
#include <vector>

#include "graph/Node_set.h"
#include "graph/Row_array.h"
#include "vorlane/rows.h"

namespace gns {

/// Two communities, smaller index first, and how many nodes they share (at least 1).
using Com_overlap = vorlane::Overlap;

/// The community graph: its links ascending by (first, second).
using Com_graph = std::vector<Com_overlap>;

/// Value -> how often it occurs, ascending.
using Distribution = std::map<std::uint32_t, std::uint32_t>;

/// Links every two communities by the number of nodes that they share.
void Prepare_community_graph(Com_graph& com_graph, const Row_array<Node_index>& coms);

/// Computes the distributions of community size, community degree, overlap size and node
/// membership. `vertex_count` is the number of vertices of the graph; those in no community count
/// at membership 0, a key that is always there. Throws Xerror_msg if the communities hold more
/// nodes.
void Community_statistics(Distribution& size_dist, Distribution& degree_dist,
                          Distribution& overlap_dist, Distribution& membership_dist,
                          const Row_array<Node_index>& coms, std::uint32_t vertex_count);

/// The same where the graph of these communities is at hand already.
void Community_statistics(Distribution& size_dist, Distribution& degree_dist,
                          Distribution& overlap_dist, Distribution& membership_dist,
                          const Row_array<Node_index>& coms, const Com_graph& com_graph,
                          std::uint32_t vertex_count);

}  // namespace gns
