#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "cli/terminal/Resources.h"
#include "cli/terminal/Time_left.h"

namespace gns {

/// How far a run has come, at one moment.
struct Progress_figures {
  std::vector<std::string> report;     ///< the lines of the state report that say something
  double share_done = 0.0;             ///< of the work of the stage, from 0 to 1
  std::optional<double> seconds_left;  ///< of the stage, once it can be told
  std::uint64_t files = 0;             ///< that are to be written at most; 0: not yet known
  std::uint64_t entries = 0;           ///< in them
  std::uint64_t bytes = 0;
  std::uint64_t pair_bytes = 0;  ///< not among `bytes`: of pairs of communities
  std::uint64_t cliques = 0;
  std::uint64_t k_cliques = 0;  ///< at the k at hand
  std::uint64_t nodes_left = 0;
  std::uint64_t failed_in_a_row = 0;  ///< of a search with a time limit
  double seconds = 0.0;
  std::uint64_t peak_memory = 0;  ///< in bytes
};

/// The figures of now; `watch` counts the time. `time_left` is the caller's for the whole run.
Progress_figures Current_figures(const Stopwatch& watch, Time_left& time_left);

/// Lines for people, each of at most `width` characters. Where one is too long, its labels are
/// shortened, words at the end of a report are left out, or the whole line; no number is ever cut.
std::vector<std::string> In_lines(const Progress_figures& figures, std::size_t width);

/// The same as one line of a log.
std::string In_one_line(const Progress_figures& figures);

/// An object of JSON, on one line.
std::string In_json(const Progress_figures& figures);

}  // namespace gns
