#pragma once

#include "search/Attempt.h"
#include "search/Clique_vector.h"
#include "search/Left_map.h"
#include "search/Node_work.h"
#include "search/Overlap_matrix.h"
#include "search/Search_kind.h"
#include "search/Worker_search.h"

namespace gns {

/// The whole of a search: yields what was given up as a subgraph, and makes the matrix a view of
/// `cliques`, of those recorded so far if a stop ends it. With a time limit (null: none) nodes are
/// searched one by one, as one clock counts for all; without one by the workers of the run.
Left_map Search_all(const Search_maker& make, const Node_work& nodes, const Search_kind& kind,
                    const Time_limit* limit, Clique_vector& cliques,
                    Overlap_matrix& overlap_matrix);

}  // namespace gns
