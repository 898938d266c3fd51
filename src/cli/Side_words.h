#pragma once

#include <exception>
#include <string>
#include <vector>

#include "engine/Results_bound.h"
#include "engine/Run_parameters.h"
#include "engine/Run_summary.h"
#include "foundation/paths/Free_space.h"
#include "graph/Link_map.h"
#include "input/Link_file_check.h"

namespace gns {

/// What the program says on standard error beside the messages of a run: what went wrong where,
/// what can't have been meant, and the way out.

/// Prints a text as lines that begin with "vorlane: ". Nothing if the text is empty.
void Tell(const std::string& text);

/// True if standard output and standard error end up in the same place.
bool Outputs_are_one();

/// Where and why a run failed, and what to do; empty where the message tells all that there is.
std::string Way_out(const std::exception& failure);

/// What is odd about an input: what can't have been meant, and why there are no links. `links` is
/// null if it ended at a line that no link could be made of.
std::vector<std::string> Of_input(const Link_file_check& check, const Link_map* links,
                                  const std::string& file);

/// A warning where the results may not find the space, or take more than 10 GB; else empty. The
/// results go to `dir`.
std::string Of_great_results(const Results_bound& bound, const Free_space& space,
                             const std::string& dir, const Run_parameters& parameters);

/// Why a run has no communities though it finished; empty if that needs no words.
std::string Why_no_communities(const Run_summary& summary, const Run_parameters& parameters);

}  // namespace gns
