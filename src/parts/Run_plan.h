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

}  // namespace gns::parts
