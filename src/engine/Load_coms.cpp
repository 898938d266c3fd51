#include "engine/Load_coms.h"

#include <functional>

#include "engine/Run_message.h"
#include "files/Results_reader.h"

namespace gns {

namespace {

void Load(const std::string& results_dir, std::uint32_t load_mode, const Table_pointers& tables,
          std::string& errors) {
  constexpr std::uint32_t of_directed_run = 1;
  constexpr std::uint32_t of_intensity_run = 2;
  Read_coms(results_dir, Method_of(load_mode == of_directed_run, load_mode == of_intensity_run),
            tables, errors);
}

}  // namespace

std::string Load_coms(const std::string& results_dir, std::uint32_t load_mode,
                      Com_result_tables& tables, std::string& errors) {
  const auto work = [&] { Load(results_dir, load_mode, Pointers_to(tables), errors); };
  return Message_of(std::cref(work));
}

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
    By_k<Distribution_table>& membership_dist_merged, std::string& errors) {
  const auto work = [&] {
    Load(results_dir, load_mode,
         {&graph_links, &cliques, &k_cliques, &communities, &com_links, &com_cliques, &com_graphs,
          &size_dist_exact, &degree_dist_exact, &overlap_dist_exact, &membership_dist_exact,
          &size_dist_appr, &degree_dist_appr, &overlap_dist_appr, &membership_dist_appr,
          &size_dist_merged, &degree_dist_merged, &overlap_dist_merged, &membership_dist_merged},
         errors);
  };
  return Message_of(std::cref(work));
}

}  // namespace gns
