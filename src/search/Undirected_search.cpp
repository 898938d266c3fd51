#include "search/Undirected_search.h"

#include <algorithm>
#include <memory>
#include <sstream>

#include "control/Clique_find_ext_cont.h"
#include "graph/Node_order.h"
#include "search/Clique_reports.h"
#include "search/Clique_walk.h"
#include "search/Search_graph.h"

namespace gns {

namespace {

/// Adds the clique of `node` and the candidates in `row`, all in ascending order.
void Record(Clique_vector& cliques, Node_index node, const Local_graph& local,
            const Bit_word* row) {
  bool placed = false;
  For_each_bit(row, local.words, [&](std::size_t position) {
    const Node_index member = local.candidates[position];
    if (!placed && member > node) {
      cliques.Append(node);
      placed = true;
    }
    cliques.Append(member);
  });
  if (!placed) cliques.Append(node);
  cliques.Close_row();
}

}  // namespace

void Clique_find_ec(Clique_vector& cliques, const Vertex_map& vtx_map) {
  using external_control::CURRENT_STATE_REPORT;
  cliques.clear();
  Node_order order;
  Sort_Vtx_map(order, vtx_map);
  Search_graph graph(vtx_map.Rows(), order);
  Clique_walk walk;
  Local_graph local;
  std::vector<Bit_word> found;
  const auto report = std::make_shared<Progress_report>(" Locating cliques:", "nodes",
                                                        static_cast<std::uint32_t>(order.size()));
  for (std::size_t i = 0; i < order.size(); ++i) {
    external_control::Check_for_stop_signal();
    report->Set_remaining(static_cast<std::uint32_t>(order.size() - i));
    if (i == 0) CURRENT_STATE_REPORT = report;
    if (graph.Cut_out(order[i], local)) {
      walk.Find(local, found);
      for (std::size_t at = 0; at < found.size(); at += local.words)
        Record(cliques, order[i], local, found.data() + at);
    }
    graph.Finish(order[i]);
  }
  std::ostringstream end;
  Clique_find_report_sub_routines::Report_clique_search_end(
      "cliques", static_cast<std::uint32_t>(cliques.size()), end);
  CURRENT_STATE_REPORT = end.str();
}

}  // namespace gns
