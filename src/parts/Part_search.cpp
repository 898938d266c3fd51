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
void Search_in_pieces(Sliced_node_search& search, const Node_work& nodes, const Search_range& range,
                      Clique_vector& cliques) {
  constexpr std::uint64_t step = 64;
  const auto [first, last, slice] = range;
  const auto progress = std::make_shared<Progress_report>(" Locating cliques of a part:", "nodes",
                                                          static_cast<std::uint32_t>(last - first));
  external_control::Report_state(progress);
  external_control::Work_done& done = external_control::This_control().work_done;
  done.Begin(nodes.Of(range));
  Range_search range_search(search, nodes.Order());
  for (std::uint64_t place = first; place < last; place += step) {
    const std::uint64_t end = std::min(place + step, last);
    const Search_range piece = {place, end, slice};
    range_search.Find(piece, cliques);
    Refuse_more_than(most_numbered_cliques, cliques);
    const auto left = static_cast<std::uint32_t>(last - end);
    progress->Set_remaining(left);
    Note_progress(cliques.size(), left);
    done.Add(nodes.Of(piece));
  }
  done.Begin(0);
}

/// Calls use(search, nodes) with a search of the graph.
template <typename Use>
void With_search(const Named_graph& graph, Use use) {
  const Node_order order = Order_of(graph);
  const Search_graph searched = Search_graph_of(graph, order);
  const Node_work nodes(searched, order);
  if (graph.directed) {
    Directed_node_search search(searched);
    use(search, nodes);
  } else {
    Undirected_node_search search(searched);
    use(search, nodes);
  }
}

}  // namespace

void Search_the_range(const Named_graph& graph, const Search_range& range, Clique_vector& cliques) {
  With_search(graph, [&](Sliced_node_search& search, const Node_work& nodes) {
    Search_in_pieces(search, nodes, range, cliques);
  });
}

Joined_ranges::Joined_ranges(const Named_graph& graph, const std::vector<Search_range>& ranges,
                             const std::vector<const Clique_vector*>& found) {
  blocks_ = found;
  if (std::ranges::all_of(ranges, [](const Search_range& r) { return r.slice.Is_whole(); })) return;
  blocks_.clear();
  With_search(graph, [&](Sliced_node_search& search, const Node_work& nodes) {
    Range_search range_search(search, nodes.Order());
    for (std::size_t at = 0; at < ranges.size(); at += ranges[at].slice.count) {
      blocks_.push_back(found[at]);
      if (ranges[at].slice.Is_whole()) continue;
      const std::span slices = std::span(found).subspan(at, ranges[at].slice.count);
      range_search.Join(ranges[at], slices, joined_.emplace_back());
      blocks_.back() = &joined_.back();
    }
  });
}

}  // namespace gns::parts
