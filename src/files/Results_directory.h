#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "foundation/Errors.h"

namespace gns {

/// A directory for results holds something already.
class Xdir_not_empty : public Xerror_msg {
 public:
  explicit Xdir_not_empty(std::string dir);
  ~Xdir_not_empty() noexcept override;

  std::string dir;
};

/// Refuses a directory that holds anything: throws Xdir_not_empty. A missing or an empty one
/// passes, and so does one that counts as empty by its size.
void Check_out_dir(const std::string& output_dir);

/// Refuses a directory by what stands in it, whatever its size: throws Xdir_not_empty if there is
/// anything but `allowed`, Xerror_msg if it can't be listed.
void Check_entries(const std::string& output_dir, std::string_view allowed = {});

/// Sets `run_header` to its first three lines: the input's absolute path and the thresholds.
void Generate_alap_szoveg(std::string& run_header, const std::string& input_file,
                          bool use_lower_threshold, double lower_threshold,
                          bool use_upper_threshold, double upper_threshold);

/// The same with a source in words of the caller's own.
void Generate_header(std::string& run_header, const std::string& source, bool use_lower_threshold,
                     double lower_threshold, bool use_upper_threshold, double upper_threshold);

/// Appends the lines on intensity, direction, time limit and single k.
void Extend_alap_szoveg(std::string& run_header, bool use_intensity, double intensity_threshold,
                        bool directed, bool use_time_limit, double time_limit, bool use_single_k,
                        std::uint32_t single_k);

/// Creates the results directory and writes input_params.txt, which holds the header alone.
void Kiir_params(const std::string& output_dir, const std::string& run_header);

/// Sets `com_flag` to "directed", "intensity" or nothing.
void Generate_com_flag(std::string& com_flag, bool directed, bool use_intensity);

}  // namespace gns
