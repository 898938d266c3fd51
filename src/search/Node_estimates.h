#pragma once

#include <cstdint>
#include <vector>

#include "graph/Node_order.h"
#include "search/Search_graph.h"

namespace gns {

/// Estimates of the work of a search on each node, at the places of the order: finer than
/// Node_work, and dearer. They are for ranges that are shared out once for all, where nobody takes
/// over what others don't come to. The same on all machines. Polls as a long stage does.
std::vector<std::uint64_t> Estimates_of_nodes(const Search_graph& graph, const Node_order& order);

}  // namespace gns
