#include "parts/Part_search.h"

#include <algorithm>
#include <memory>

#include "control/Run_control.h"
#include "graph/Node_order.h"
#include "search/Clique_reports.h"
#include "search/Directed_search.h"
#include "search/Node_work.h"
#include "search/Queue_search.h"
#include "search/Range_search.h"
#include "search/Undirected_search.h"

namespace gns::parts {

namespace {

/// In pieces, so that it can be told how far it is.
void Search_in_pieces(Node_search& search, const Node_work& nodes, std::uint64_t first,
                      std::uint64_t last, Clique_vector& cliques) {
  constexpr std::uint64_t step = 64;
  const auto progress = std::make_shared<Progress_report>(" Locating cliques of a part:", "nodes",
                                                          static_cast<std::uint32_t>(last - first));
  external_control::Report_state(progress);
  external_control::Work_done& done = external_control::This_control().work_done;
  done.Begin(nodes.Of_range(first, last));
  Range_search range(search, nodes.Order());
  for (std::uint64_t place = first; place < last; place += step) {
    const std::uint64_t end = std::min(place + step, last);
    range.Find(place, end, cliques);
    Refuse_more_than(most_numbered_cliques, cliques);
    const auto left = static_cast<std::uint32_t>(last - end);
    progress->Set_remaining(left);
    Note_progress(cliques.size(), left);
    done.Add(nodes.Of_range(place, end));
  }
  done.Begin(0);
}

}  // namespace

void Search_places(const Named_graph& graph, std::uint64_t first, std::uint64_t last,
                   Clique_vector& cliques) {
  const Node_order order = Order_of(graph);
  const Node_work nodes(graph.Neighs(), order);
  if (graph.directed) {
    const Search_graph searched(graph.directed_vertices, order);
    Directed_node_search search(searched);
    Search_in_pieces(search, nodes, first, last, cliques);
  } else {
    const Search_graph searched(graph.Neighs(), order);
    Undirected_node_search search(searched);
    Search_in_pieces(search, nodes, first, last, cliques);
  }
}

}  // namespace gns::parts
