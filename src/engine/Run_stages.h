#pragma once

#include "engine/Run_opening.h"
#include "engine/Run_parameters.h"
#include "engine/Run_summary.h"
#include "engine/Run_wishes.h"

namespace gns {

/// A run, from the link file to a results directory that is whole. Reports and polls. Throws what
/// its stages throw; what it has written until then stays, marked as unfinished.
/// `approximation_needed` becomes true if some cliques are approximate; `summary` is filled as the
/// run goes on.
void Run_stages(const Run_parameters& parameters, const Run_wishes& wishes,
                bool& approximation_needed, Run_summary& summary);

}  // namespace gns
