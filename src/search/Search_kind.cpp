#include "search/Search_kind.h"

#include <sstream>

#include "control/Run_control.h"
#include "foundation/text/My_double2string.h"
#include "search/Clique_reports.h"

namespace gns {

std::string Title_of(const Search_kind& kind, const Time_limit* limit) {
  constexpr unsigned digits = 3;
  if (limit == nullptr) return kind.title;
  return kind.timed_title + double2string(limit->seconds, digits) + ":";
}

void Report_end(const Search_kind& kind, const Time_limit* limit, bool all_solved,
                const Clique_vector& cliques) {
  namespace reports = Clique_find_report_sub_routines;
  const auto count = static_cast<std::uint32_t>(cliques.size());
  std::ostringstream text;
  if (!all_solved)
    reports::Report_clique_search_end("exact " + kind.unit, count, text);
  else if (limit == nullptr)
    reports::Report_clique_search_end(kind.unit, count, text);
  else
    reports::Report_clique_search_end(kind.unit, count, kind.closing_line, text);
  external_control::Report_state(text.str());
}

void Note_progress(std::size_t cliques, std::uint32_t nodes_left, std::uint32_t failed_in_a_row) {
  external_control::Progress& progress = external_control::This_control().progress;
  progress.cliques_found.store(cliques, std::memory_order_relaxed);
  progress.nodes_left.store(nodes_left, std::memory_order_relaxed);
  progress.failed_in_a_row.store(failed_in_a_row, std::memory_order_relaxed);
}

}  // namespace gns
