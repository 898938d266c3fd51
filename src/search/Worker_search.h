#pragma once

#include <cstddef>
#include <functional>
#include <memory>

#include "search/Clique_vector.h"
#include "search/Node_search.h"
#include "search/Node_work.h"
#include "search/Search_kind.h"

namespace gns {

/// Makes one more search of the same graph, of which no node has finished. Called from any worker.
using Search_maker = std::function<std::unique_ptr<Sliced_node_search>()>;

/// Searches all nodes on the workers of the run, without a time limit: the same cliques in the same
/// order as Search_queue() has. `cliques` grows as ranges of nodes are done with, in their order,
/// so that a stop leaves the first ones. Reports, polls and throws as Search_queue() does.
void Search_on_workers(const Search_maker& make, const Node_work& nodes, const Search_kind& kind,
                       Clique_vector& cliques);

}  // namespace gns
