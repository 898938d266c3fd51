#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "vorlane/analysis.h"
#include "vorlane/control.h"
#include "vorlane/error.h"
#include "vorlane/network.h"
#include "vorlane/version.h"

namespace vorlane {

/// A run from a file to a results directory, in parts that any number of processes on any machines
/// do, with the bytes of a single run. They meet in a folder, `work`, that all of them see, by the
/// same version of this library. First Plan_parts(); then Search_part() for each part, in any order
/// and at the same time; then Gather_parts(); then Find_levels_of_part() for each part, in the same
/// way; then Finish_parts(). Parts count from 1.
///
/// Each may be called again, or by several at a time: what is done already is left as it is, and
/// what was cut short is done from its start. Each throws an Error that names the file and the cure
/// where something is missing, changed or of another run, and where files can't be written, and of
/// kind `stopped` if the control says so. Any number may go on in as many threads.

/// A worker may see a copy of the folder, and nothing of the results directory: a directory of its
/// own, `elsewhere`, takes its place then. What is written in there and into the copy is for
/// somebody to carry to the others, levels.I.done last.

/// Reads the input and writes the plan. `out` becomes a results directory that is marked as
/// unfinished. Options as of an Analysis, but for a time limit, which throws an Error of kind
/// `parameters`, and for `links` and `workers`, which aren't looked at: a part is done by one
/// thread. Memory: some 50 bytes a link.
VORLANE_API void Plan_parts(const std::string& input, const Link_options& how,
                            const Options& options, const std::string& out, const std::string& work,
                            std::uint64_t parts, const Control& control = {});

/// Finds the cliques of a part; yields how many.
VORLANE_API std::uint64_t Search_part(const std::string& work, std::uint64_t part,
                                      const Control& control = {},
                                      const std::string& elsewhere = "");

/// Numbers all cliques and writes them, and is done with the parts that no level is left for.
/// Yields how many cliques there are.
VORLANE_API std::uint64_t Gather_parts(const std::string& work, const Control& control = {});

/// Finds and writes the levels of a part; yields how many. There may be fewer levels than parts.
VORLANE_API std::uint64_t Find_levels_of_part(const std::string& work, std::uint64_t part,
                                              const Control& control = {},
                                              const std::string& elsewhere = "");

/// Sees that all is there, takes the mark of the results away, and yields their directory, for
/// Results::Open(). If something is missing, the Error tells what, and how it is made.
VORLANE_API std::string Finish_parts(const std::string& work, const Control& control = {});

enum class Part_state { missing, running, done };

/// How far a run in parts is.
struct Parts_status {
  std::string out;
  std::vector<Part_state> search;  ///< by part, the first one at 0
  Part_state gather = Part_state::missing;
  std::vector<Part_state> levels;
  bool finished = false;
};

/// Looks at heads and tails of files only. Running is what somebody has begun and not ended, unless
/// he is known to be gone.
VORLANE_API Parts_status Status_of_parts(const std::string& work);

}  // namespace vorlane
