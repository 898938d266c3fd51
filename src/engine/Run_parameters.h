#pragma once

#include <cstdint>
#include <string>

namespace gns {

/// The parameters of a run. A value is read only if its `use_` is set.
struct Run_parameters {
  std::string input_file;
  std::string output_dir;
  bool use_lower_threshold = false;
  double lower_threshold = 0.0;
  bool use_upper_threshold = false;
  double upper_threshold = 0.0;
  bool directed = false;
  bool use_intensity = false;
  double intensity_threshold = 0.0;
  bool use_time_limit = false;
  double time_limit = 0.0;  ///< seconds of processor time per node
  bool use_single_k = false;
  std::uint32_t single_k = 0;
};

}  // namespace gns
