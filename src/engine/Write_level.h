#pragma once

#include <cstdint>

#include "engine/Levels.h"
#include "engine/Run_keeper.h"
#include "engine/Run_summary.h"
#include "files/Results_writer.h"
#include "graph/Node_names.h"

namespace gns {

/// Everything that a run does at one k: finds the level and writes its files, step by step. Reports
/// and polls; throws what the steps throw, and files written until then stay. `keeper`, if there is
/// one, is handed the level at the end.
K_summary Find_and_write_level(std::uint32_t k, Levels& levels, const Results_writer& results,
                               const Node_names& names, Run_keeper* keeper = nullptr);

}  // namespace gns
