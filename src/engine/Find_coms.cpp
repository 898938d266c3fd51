#include "engine/Find_coms.h"

#include <functional>

#include "engine/Run_message.h"
#include "engine/Run_stages.h"

namespace gns {

namespace {

void Run(const Run_parameters& parameters, bool& approximation_needed, Run_summary& summary,
         const Table_pointers& tables) {
  Run_wishes wishes;
  wishes.tables = tables;
  Run_stages(parameters, wishes, approximation_needed, summary);
}

}  // namespace

std::string Find_coms(const std::string& input_file, const std::string& output_dir,
                      bool use_lower_threshold, double lower_threshold, bool use_upper_threshold,
                      double upper_threshold, bool directed, bool use_intensity,
                      double intensity_threshold, bool use_time_limit, double time_limit,
                      bool use_single_k, std::uint32_t single_k, bool& approximation_needed) {
  const auto work = [&] {
    Run_summary summary;
    Run({input_file, output_dir, use_lower_threshold, lower_threshold, use_upper_threshold,
         upper_threshold, directed, use_intensity, intensity_threshold, use_time_limit, time_limit,
         use_single_k, single_k},
        approximation_needed, summary, {});
  };
  return Message_of(std::cref(work));
}

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
    By_k<Distribution_table>& membership_dist_merged) {
  const auto work = [&] {
    Run_summary summary;
    Run({input_file, output_dir, use_lower_threshold, lower_threshold, use_upper_threshold,
         upper_threshold, directed, use_intensity, intensity_threshold, use_time_limit, time_limit,
         use_single_k, single_k},
        approximation_needed, summary,
        {&graph_links, &cliques, &k_cliques, &communities, &com_links, &com_cliques, &com_graphs,
         &size_dist_exact, &degree_dist_exact, &overlap_dist_exact, &membership_dist_exact,
         &size_dist_appr, &degree_dist_appr, &overlap_dist_appr, &membership_dist_appr,
         &size_dist_merged, &degree_dist_merged, &overlap_dist_merged, &membership_dist_merged});
  };
  return Message_of(std::cref(work));
}

std::string Find_coms(const Run_parameters& parameters, bool& approximation_needed,
                      Run_summary& summary, Com_result_tables* tables) {
  const auto work = [&] {
    Run(parameters, approximation_needed, summary,
        tables == nullptr ? Table_pointers() : Pointers_to(*tables));
  };
  return Message_of(std::cref(work));
}

}  // namespace gns
