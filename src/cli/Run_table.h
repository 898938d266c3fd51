#pragma once

#include <ostream>

#include "engine/Run_summary.h"

namespace gns {

/// What a run found, for people: nodes, links and cliques, and a row for each k of the run.
void Print_run_table(std::ostream& stream, const Run_summary& summary);

}  // namespace gns
