#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "engine/Run_parameters.h"

namespace gns::parts {

/// What all parts of a run are told.
struct Run_plan {
  Run_parameters parameters;  ///< with absolute paths
  std::string header;         ///< of the results files
  /// Part i searches the nodes at the places from starts[i - 1] up to starts[i] of the node order.
  std::vector<std::uint64_t> starts;
  std::vector<std::uint64_t> estimates;  ///< of the work of each part

  [[nodiscard]] std::uint64_t Parts() const { return estimates.size(); }
};

/// Cuts works that stand behind each other into so many groups whose dearest is as cheap as can be:
/// the places where the groups begin, and the end. The first work of a group counts twice, for what
/// it takes to begin. The last groups may be empty.
std::vector<std::uint64_t> Even_groups(const std::vector<std::uint64_t>& works,
                                       std::uint64_t groups);

}  // namespace gns::parts
