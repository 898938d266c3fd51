#pragma once

#include <cstdint>
#include <string>

#include "results/Com_result_tables.h"

namespace gns {

/// Fills the tables from the results directory of an earlier run. `load_mode` is 2 for an intensity
/// run, 1 for a directed run, and anything else for a plain one. Never throws: yields run_finished,
/// or the words of what went wrong. Look at both: what the reload could put up with, a file that is
/// missing or damaged, is appended to `errors`, and the tables then hold what could be read. What a
/// stopped run has finished loads like any other results; Is_marked_unfinished tells it.
///
/// Reports nothing and can't be stopped. One run or reload at a time in a process; a second one is
/// refused.
std::string Load_coms(const std::string& results_dir, std::uint32_t load_mode,
                      Com_result_tables& tables, std::string& errors);

/// The same with the nineteen tables one by one, in their order, and `errors` behind them.
std::string Load_coms(
    const std::string& results_dir, std::uint32_t load_mode, Name_pairs& graph_links,
    Names_by_index& cliques, By_k<Names_by_index>& k_cliques, By_k<Names_by_index>& communities,
    By_k<Links_by_index>& com_links, By_k<Indices_by_index>& com_cliques,
    By_k<Overlap_table>& com_graphs, By_k<Distribution_table>& size_dist_exact,
    By_k<Distribution_table>& degree_dist_exact, By_k<Distribution_table>& overlap_dist_exact,
    By_k<Distribution_table>& membership_dist_exact, By_k<Distribution_table>& size_dist_appr,
    By_k<Distribution_table>& degree_dist_appr, By_k<Distribution_table>& overlap_dist_appr,
    By_k<Distribution_table>& membership_dist_appr, By_k<Distribution_table>& size_dist_merged,
    By_k<Distribution_table>& degree_dist_merged, By_k<Distribution_table>& overlap_dist_merged,
    By_k<Distribution_table>& membership_dist_merged, std::string& errors);

}  // namespace gns
