#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "engine/Run_parameters.h"
#include "search/Search_range.h"

namespace gns::parts {

/// What all parts of a run are told.
struct Run_plan {
  Run_parameters parameters;             ///< with absolute paths
  std::string header;                    ///< of the results files
  std::vector<Search_range> ranges;      ///< what each part searches
  std::vector<std::uint64_t> estimates;  ///< of the work of each part

  [[nodiscard]] std::uint64_t Parts() const { return estimates.size(); }
};

}  // namespace gns::parts
