#pragma once

#include <cstdint>

#include "engine/Levels.h"
#include "files/Results_writer.h"
#include "graph/Node_names.h"

namespace gns {

/// Where a level is written while it is found.
struct Level_output {
  const Results_writer& results;
  const Node_names& names;
};

/// Everything at one k: finds the level, step by step, and writes the files of each step if there
/// is an output. Reports and polls; throws what the steps throw, and files written until then stay.
Level Find_level(std::uint32_t k, Levels& levels, const Level_output* output = nullptr);

}  // namespace gns
