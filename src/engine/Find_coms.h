#pragma once

#include <cstdint>
#include <string>

#include "engine/Run_message.h"
#include "engine/Run_parameters.h"
#include "engine/Run_summary.h"
#include "results/Com_result_tables.h"

namespace gns {

/// The run: takes a link file and leaves a complete results directory, for `single_k` or for every
/// k from the largest clique down to 3. Never throws: yields run_finished, or the words of what
/// went wrong. `approximation_needed` becomes true if some cliques are approximate.
///
/// Keeps the state report up to date and can be stopped from another thread. What a stopped or
/// failed run has written stays, marked as unfinished (Is_marked_unfinished). Files that could not
/// be written are listed by File_faults() and change no message. One run or reload at a time in a
/// process; a second one is refused.
std::string Find_coms(const std::string& input_file, const std::string& output_dir,
                      bool use_lower_threshold, double lower_threshold, bool use_upper_threshold,
                      double upper_threshold, bool directed, bool use_intensity,
                      double intensity_threshold, bool use_time_limit, double time_limit,
                      bool use_single_k, std::uint32_t single_k, bool& approximation_needed);

/// The same with the parameters as one record, and with a summary of what was found. `tables`, if
/// there are any, are filled beside the files; the caller passes them empty. After a stop or a
/// failure they hold what was written until then.
std::string Find_coms(const Run_parameters& parameters, bool& approximation_needed,
                      Run_summary& summary, Com_result_tables* tables = nullptr);

/// The long form that fills tables: the nineteen of Com_result_tables one by one, in their order.
std::string Find_coms(
    const std::string& input_file, const std::string& output_dir, bool use_lower_threshold,
    double lower_threshold, bool use_upper_threshold, double upper_threshold, bool directed,
    bool use_intensity, double intensity_threshold, bool use_time_limit, double time_limit,
    bool use_single_k, std::uint32_t single_k, bool& approximation_needed, Name_pairs& graph_links,
    Names_by_index& cliques, By_k<Names_by_index>& k_cliques, By_k<Names_by_index>& communities,
    By_k<Links_by_index>& com_links, By_k<Indices_by_index>& com_cliques,
    By_k<Overlap_table>& com_graphs, By_k<Distribution_table>& size_dist_exact,
    By_k<Distribution_table>& degree_dist_exact, By_k<Distribution_table>& overlap_dist_exact,
    By_k<Distribution_table>& membership_dist_exact, By_k<Distribution_table>& size_dist_appr,
    By_k<Distribution_table>& degree_dist_appr, By_k<Distribution_table>& overlap_dist_appr,
    By_k<Distribution_table>& membership_dist_appr, By_k<Distribution_table>& size_dist_merged,
    By_k<Distribution_table>& degree_dist_merged, By_k<Distribution_table>& overlap_dist_merged,
    By_k<Distribution_table>& membership_dist_merged);

}  // namespace gns
