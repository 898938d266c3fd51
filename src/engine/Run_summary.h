#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "communities/Level_statistics.h"

namespace gns {

/// What was found at one k.
struct K_summary {
  std::uint32_t k = 0;
  Level_statistics statistics;
};

/// What a run found, filled in as it goes on. A run first empties it.
struct Run_summary {
  std::uint32_t nodes = 0;
  std::size_t links = 0;
  std::vector<std::size_t> cliques_of_size;  ///< [n]: cliques of n nodes
  std::size_t exact_cliques = 0;
  std::size_t approximate_cliques = 0;
  std::vector<K_summary> extractions;  ///< in the order of the run, largest k first
};

}  // namespace gns
