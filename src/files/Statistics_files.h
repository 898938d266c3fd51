#pragma once

#include <cstdint>
#include <string>

#include "communities/Community_statistics.h"

namespace gns {

/// Writes the four distributions at one k. `stat_flag` is the suffix of the file names: "_merged",
/// "_exact", "_appr" or nothing. Mind the order of the distributions.
void Kiir_stats_VL(const Distribution& membership_dist, const Distribution& size_dist,
                   const Distribution& overlap_dist, const Distribution& degree_dist,
                   const std::string& output_dir, std::uint32_t k, const std::string& com_flag,
                   const std::string& stat_flag, const std::string& run_header);

/// Writes one distribution: `title` (all comment lines), a blank line, a line per entry, a blank
/// line.
void Kiir_VL_dist(const std::string& file_name, const Distribution& dist, const std::string& title);

}  // namespace gns
