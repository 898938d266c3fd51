#pragma once

#include <ostream>

#include "cli/terminal/Resources.h"
#include "engine/Run_parameters.h"
#include "engine/Run_summary.h"
#include "queries/Summary.h"
#include "vorlane/results.h"

namespace gns {

/// What a run found, as it is told of results that are there.
vorlane::queries::Summary Summary_of_run(const Run_summary& run, vorlane::Method method);

/// What a run found, for people: nodes, links and cliques, a row for neighbouring k with the same
/// figures, and which k to look at first if there are several.
void Print_run_table(std::ostream& stream, const Run_summary& run);

/// On standard output what is told of a run that has finished, behind its message: that table, what
/// it took and where the results are, or the figures as JSON.
void Print_findings(const Run_parameters& parameters, const Run_summary& run,
                    const Stopwatch& watch, bool json);

}  // namespace gns
