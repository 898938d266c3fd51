#pragma once

#include <ostream>

#include "engine/Run_summary.h"
#include "queries/Summary.h"
#include "vorlane/results.h"

namespace gns {

/// What a run found, as it is told of results that are there.
vorlane::queries::Summary Summary_of_run(const Run_summary& run, vorlane::Method method);

/// What a run found, for people: nodes, links and cliques, a row for neighbouring k with the same
/// figures, and which k to look at first if there are several.
void Print_run_table(std::ostream& stream, const Run_summary& run);

}  // namespace gns
