#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "cli/Resources.h"

namespace gns {

/// How far a run has come, at one moment.
struct Progress_figures {
  std::vector<std::string> report;  ///< the lines of the state report that say something
  std::uint64_t cliques = 0;
  std::uint64_t k_cliques = 0;  ///< at the k at hand
  std::uint64_t nodes_left = 0;
  std::uint64_t failed_in_a_row = 0;  ///< of a search with a time limit
  double seconds = 0.0;
  std::uint64_t peak_memory = 0;  ///< in bytes
};

/// The figures of now; `watch` counts the time.
Progress_figures Current_figures(const Stopwatch& watch);

/// Lines for people, each of at most `width` characters. Where one is too long, its labels are
/// shortened, words at the end of a report are left out, or the whole line; no number is ever cut.
std::vector<std::string> In_lines(const Progress_figures& figures, std::size_t width);

/// The same as one line of a log.
std::string In_one_line(const Progress_figures& figures);

/// An object of JSON, on one line.
std::string In_json(const Progress_figures& figures);

}  // namespace gns
