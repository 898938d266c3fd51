#pragma once

#include <cstdint>
#include <string>

#include "communities/Community_statistics.h"
#include "files/Level_writer.h"
#include "results/Com_result_tables.h"

namespace gns {

/// Writes the four distributions at one k. `stat_flag` is the suffix of the file names: "_merged",
/// "_exact", "_appr" or nothing. Mind the order of the distributions. The form with "_ret" first
/// puts copies of them into the tables that it is given.
void Kiir_stats_VL_ret(const Distribution& membership_dist, const Distribution& size_dist,
                       const Distribution& overlap_dist, const Distribution& degree_dist,
                       const std::string& output_dir, std::uint32_t k, const std::string& com_flag,
                       const std::string& stat_flag, const std::string& run_header,
                       const Statistics_tables& tables);
inline void Kiir_stats_VL_ret(const Distribution& membership_dist, const Distribution& size_dist,
                              const Distribution& overlap_dist, const Distribution& degree_dist,
                              const std::string& output_dir, std::uint32_t k,
                              const std::string& com_flag, const std::string& stat_flag,
                              const std::string& run_header,
                              By_k<Distribution_table>& membership_tables,
                              By_k<Distribution_table>& size_tables,
                              By_k<Distribution_table>& overlap_tables,
                              By_k<Distribution_table>& degree_tables) {
  const Statistics_tables tables = {&membership_tables, &size_tables, &overlap_tables,
                                    &degree_tables};
  Kiir_stats_VL_ret(membership_dist, size_dist, overlap_dist, degree_dist, output_dir, k, com_flag,
                    stat_flag, run_header, tables);
}
inline void Kiir_stats_VL(const Distribution& membership_dist, const Distribution& size_dist,
                          const Distribution& overlap_dist, const Distribution& degree_dist,
                          const std::string& output_dir, std::uint32_t k,
                          const std::string& com_flag, const std::string& stat_flag,
                          const std::string& run_header) {
  Kiir_stats_VL_ret(membership_dist, size_dist, overlap_dist, degree_dist, output_dir, k, com_flag,
                    stat_flag, run_header, {});
}

/// Writes one distribution: `title` (all comment lines), a blank line, a line per entry, a blank
/// line.
void Kiir_VL_dist(const std::string& file_name, const Distribution& dist, const std::string& title);

}  // namespace gns
