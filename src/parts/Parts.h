#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "engine/Run_parameters.h"
#include "engine/Run_summary.h"
#include "engine/Run_wishes.h"
#include "parts/Work_folder.h"

namespace gns::parts {

/// A run in parts, which any number of processes on any machines do, with the results directory of
/// a single run, to the byte. They meet in a folder that all of them see.
///
/// A worker may see a copy of the folder, and nothing of the results directory: a directory of its
/// own, `elsewhere`, takes its place in the search and for the levels. What is written in there and
/// into the folder is for somebody to carry to the others, the mark of what is done last.
///
/// Each step reports and polls by the control of its thread, and throws Xerror_msg, with the cure,
/// for what is missing or wrong, and for what can't be written. Each may be done again, or by
/// several at a time: the bytes are the same. What is cut short is done again from its start.

/// Refuses what no run in parts takes: a time limit, as what is found in it depends on the clock of
/// a single run, and a number of parts out of range. Throws Xerror_msg.
void Refuse_bad_plan(const Run_parameters& parameters, std::uint64_t parts);

/// Reads the input, and writes the plan of a run in `parts` parts into the folder `work`, which is
/// made if it is missing. Claims the results directory as a run does. Throws as Refuse_bad_plan()
/// and as a run in front of its search do.
void Plan(const Run_parameters& parameters, const Run_wishes& wishes, const std::string& work,
          std::uint64_t parts);

/// Finds the cliques of a part, counted from 1. Yields how many.
std::uint64_t Search(const std::string& work, std::uint64_t part,
                     const std::string& elsewhere = "");

/// Numbers the cliques of all parts and writes those files of the results that need no levels. The
/// parts of the levels that nothing is left for are done then. Yields how many cliques there are.
std::uint64_t Gather(const std::string& work);

/// Finds and writes the levels of a part, counted from 1. Yields how many.
std::uint64_t Find_levels(const std::string& work, std::uint64_t part,
                          const std::string& elsewhere = "");

/// What has been found once all is there.
struct Finished_run {
  Run_parameters parameters;
  Run_summary summary;
};

/// Sees that all parts are there, and ends the claim on the results. Throws Xerror_msg that tells
/// what is missing, and the command for each.
Finished_run Finish(const std::string& work);

enum class Part_state { missing, running, done };

struct Status {
  std::string output_dir;
  std::vector<Part_state> search;
  std::vector<std::uint64_t> slices;  ///< the parts of the search that share a node with others
  Part_state gather = Part_state::missing;
  std::vector<Part_state> levels;
  bool finished = false;
};

/// How far a run is. It looks at what parts say about themselves, not at all that is in them; of
/// what is running it knows what was begun and not ended, unless the process is seen to be gone.
Status Status_of(const std::string& work);

/// The numbers of the parts of a step that are not done; of a step without parts, 1 if it isn't.
std::vector<std::uint64_t> Left_of(const Status& status, Step step);

}  // namespace gns::parts
