#include "search/Queue_search.h"

#include <cstdint>
#include <memory>
#include <sstream>

#include "control/Clique_find_ext_cont.h"
#include "search/Clique_reports.h"

namespace gns {

namespace {

using external_control::CURRENT_STATE_REPORT;

}  // namespace

std::vector<Node_index> Search_queue(Node_search& search, const Node_order& order,
                                     const Search_wording& wording, const Time_limit* limit,
                                     bool /*subsets_too*/, Clique_vector& cliques) {
  cliques.clear();
  const auto total = static_cast<std::uint32_t>(order.size());
  const auto progress = std::make_shared<Progress_report>(wording.title, "nodes", total);
  Attempt attempt(limit);
  for (std::size_t i = 0; i < order.size(); ++i) {
    Attempt::Check_for_stop();
    progress->Set_remaining(static_cast<std::uint32_t>(order.size() - i));
    if (i == 0) CURRENT_STATE_REPORT = progress;
    attempt.Start();
    search.Find(order[i], attempt, cliques);
    search.Finish(order[i]);
  }
  std::ostringstream end;
  Clique_find_report_sub_routines::Report_clique_search_end(
      wording.unit, static_cast<std::uint32_t>(cliques.size()), end);
  CURRENT_STATE_REPORT = end.str();
  return {};
}

}  // namespace gns
