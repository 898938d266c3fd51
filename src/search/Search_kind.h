#pragma once

#include <string>

#include "search/Attempt.h"
#include "search/Clique_vector.h"

namespace gns {

/// What a search is called in its reports.
struct Search_kind {
  std::string title;         ///< of an exact search, with its colon
  std::string timed_title;   ///< in front of the time limit
  std::string unit;          ///< what is found
  std::string closing_line;  ///< of a time-limited search that left no node
};

/// The title of the reports of a search with a time limit, or null for none.
std::string Title_of(const Search_kind& kind, const Time_limit* limit);

/// Reports the end of a search that has solved all nodes, or has not.
void Report_end(const Search_kind& kind, const Time_limit* limit, bool all_solved,
                const Clique_vector& cliques);

/// Tells the figures of a search: nodes that are waiting, and attempts that have failed in a row.
void Note_progress(std::size_t cliques, std::uint32_t nodes_left,
                   std::uint32_t failed_in_a_row = 0);

}  // namespace gns
