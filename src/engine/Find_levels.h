#pragma once

#include <cstdint>
#include <functional>

#include "engine/Levels.h"

namespace gns {

/// Every k from the largest down to the smallest.
struct K_range {
  std::uint32_t largest;
  std::uint32_t smallest;  ///< if it is above the largest, there is no k
};

/// What is to be done at each k.
struct Level_steps {
  /// Finds a level; called from any worker of the run.
  std::function<Level(std::uint32_t k, Levels& levels)> find;
  /// Called with each level that was found, k descending, in the calling thread.
  std::function<void(Level& level)> use;
};

/// Finds levels on so many workers, or fewer, if there are fewer levels or too little memory is
/// left for what each of them needs. With one, a level is used before the next one is found. Throws
/// what the steps throw.
void Find_levels(const Levels_input& input, K_range ks, unsigned workers, const Level_steps& steps);

}  // namespace gns
