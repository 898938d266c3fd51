#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <vector>

#include "engine/Levels.h"

namespace gns {

/// Every k from the largest down to the smallest.
struct K_range {
  std::uint32_t largest;
  std::uint32_t smallest;  ///< if it is above the largest, there is no k
};

/// What is to be done at each k.
struct Level_steps {
  /// Finds a level; called from any worker.
  std::function<Level(std::uint32_t k, Levels& levels)> find;
  /// Called with each level that was found, k descending, in the calling thread.
  std::function<void(Level& level)> use;
};

/// Finds levels on so many workers, or fewer, if there are fewer levels or too little memory is
/// left for what each of them needs. For one thread.
class Level_finder {
 public:
  /// For levels of `all`.
  Level_finder(const Levels_input& input, K_range all, unsigned workers);

  /// Finds these levels, which lie below those found before. With one worker a level is used before
  /// the next one is found. Throws what the steps throw.
  void Find(K_range ks, const Level_steps& steps);

 private:
  void Find_one_by_one(K_range ks, const Level_steps& steps);
  void Find_on_workers(K_range ks, const Level_steps& steps);
  Levels* Levels_of(unsigned worker);

  Levels levels_;  ///< of the first worker
  unsigned workers_ = 1;
  std::vector<std::optional<Levels>> fellows_;  ///< of the others, from their first levels on
};

}  // namespace gns
