#pragma once

#include <cstddef>
#include <limits>
#include <vector>

#include "graph/Node_order.h"
#include "search/Attempt.h"
#include "search/Clique_vector.h"
#include "search/Node_search.h"
#include "search/Search_kind.h"

namespace gns {

/// All that a Clique_index, and a count of such, can tell apart.
constexpr std::size_t most_numbered_cliques = std::numeric_limits<Clique_index>::max();

/// Throws Xerror_msg if there are more cliques than that.
void Refuse_more_than(std::size_t most_cliques, const Clique_vector& cliques);

/// Searches the nodes one by one, in the order given.
///
/// With a time limit (null: none), a node whose attempt ran over goes to the end of the queue,
/// since it gets easier as others leave the graph. When all nodes in the queue have failed in a row
/// the search gives up on them. Cliques that only failed attempts found are recorded last, in
/// lexicographic order, unless they were recorded already.
///
/// Yields the nodes given up, ascending. Keeps the state report up to date and polls the stop flag.
/// Throws Xerror_msg as soon as there are more than `most_cliques`.
std::vector<Node_index> Search_queue(Node_search& search, const Node_order& order,
                                     const Search_kind& kind, const Time_limit* limit,
                                     Clique_vector& cliques,
                                     std::size_t most_cliques = most_numbered_cliques);

}  // namespace gns
