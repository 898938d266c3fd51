#pragma once

#include <cstdint>
#include <vector>

#include "parts/Level_costs.h"
#include "parts/Run_plan.h"

namespace gns::parts {

/// The levels that a part of them finds.
struct Level_group {
  std::uint64_t from = 0;  ///< the largest k
  std::uint64_t to = 1;    ///< the smallest; above `from` if the group is empty
  std::uint64_t estimate = 0;

  /// There may be fewer levels than parts; nothing has to be done then.
  [[nodiscard]] bool Is_empty() const { return from < to; }
};

/// Shares out the levels of a run, neighbours together, so that the dearest group is as cheap as
/// can be; one for each part.
std::vector<Level_group> Groups_of_levels(const Run_plan& plan, const Level_counts& counts);

}  // namespace gns::parts
