#pragma once

#include <cstdint>
#include <string>

#include "engine/Run_parameters.h"
#include "engine/Run_summary.h"

namespace gns {

/// The message of a run that finished; any other message tells why it did not.
extern const std::string run_finished;

/// The run: takes a link file and leaves a complete results directory, for `single_k` or for every
/// k from the largest clique down to 3. Never throws: yields run_finished, or the words of what
/// went wrong. `approximation_needed` becomes true if some cliques are approximate.
///
/// Keeps the state report up to date and can be stopped from another thread. What a stopped or
/// failed run has written stays, and beside the directory a file with ".unfinished" behind its
/// name. Files that could not be written are listed by File_faults() and change no message. One run
/// at a time.
std::string Find_coms(const std::string& input_file, const std::string& output_dir,
                      bool use_lower_threshold, double lower_threshold, bool use_upper_threshold,
                      double upper_threshold, bool directed, bool use_intensity,
                      double intensity_threshold, bool use_time_limit, double time_limit,
                      bool use_single_k, std::uint32_t single_k, bool& approximation_needed);

/// The same with the parameters as one record, and with a summary of what was found.
std::string Find_coms(const Run_parameters& parameters, bool& approximation_needed,
                      Run_summary& summary);

}  // namespace gns
