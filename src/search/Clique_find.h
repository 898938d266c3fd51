#pragma once

#include <cstdint>

#include "graph/Vertex_map.h"
#include "search/Attempt.h"
#include "search/Clique_vector.h"
#include "search/Overlap_matrix.h"

namespace gns {

/// Runs the search that the two booleans name on the graph that belongs to it, and covers what a
/// time-limited search has given up by core cliques.
///
/// Cliques below `exact_clique_count` are exact, the others approximate; `approximation_needed`
/// tells whether there are any of these. `time_limit` is in seconds per node and read only if
/// `use_time_limit` is set. The matrix is a view of `cliques`. A stop passes through as an
/// exception.
void Find_cliques_ec(bool use_time_limit, bool directed, Clique_vector& cliques,
                     Overlap_matrix& overlap_matrix, const Dir_vertex_map& dir_vtx_map,
                     const Vertex_map& vtx_map, std::uint32_t& exact_clique_count,
                     double time_limit, bool& approximation_needed);

/// The same with the limit as a record, or null for none.
void Find_cliques_ec(const Time_limit* time_limit, bool directed, Clique_vector& cliques,
                     Overlap_matrix& overlap_matrix, const Dir_vertex_map& dir_vtx_map,
                     const Vertex_map& vtx_map, std::uint32_t& exact_clique_count,
                     bool& approximation_needed);

}  // namespace gns
