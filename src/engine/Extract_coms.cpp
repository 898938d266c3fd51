#include "engine/Extract_coms.h"

#include "engine/Find_level.h"

namespace gns {

namespace {

/// The body of all forms.
void Extract(std::uint32_t k, const Clique_vector& cliques, std::uint32_t exact_clique_count,
             const Results_writer& results, const Node_names& names, std::uint32_t vertex_count,
             bool use_intensity, double intensity_threshold, const Index_links& index_links,
             std::uint32_t max_clique_size) {
  Levels_input input(cliques, index_links);
  input.exact_clique_count = exact_clique_count;
  input.node_count = vertex_count;
  if (use_intensity) input.intensity_threshold = intensity_threshold;
  input.max_clique_size = max_clique_size;
  Levels levels(input);
  const Level_output output = {results, names};
  Find_level(k, levels, &output);
}

}  // namespace

void Extract_coms_ec(std::uint32_t k, const Clique_vector& cliques, const Overlap_matrix&,
                     std::uint32_t exact_clique_count, const std::string& com_flag,
                     const std::string& run_header, const std::string& output_dir,
                     const Node_names& node_names, std::uint32_t vertex_count, bool use_intensity,
                     double intensity_threshold, const Index_links& index_links,
                     std::uint32_t max_clique_size) {
  Extract(k, cliques, exact_clique_count, Results_writer({output_dir, com_flag, run_header}),
          node_names, vertex_count, use_intensity, intensity_threshold, index_links,
          max_clique_size);
}

void Extract_coms_ec_ret(std::uint32_t k, const Clique_vector& cliques, const Overlap_matrix&,
                         std::uint32_t exact_clique_count, const std::string& com_flag,
                         const std::string& run_header, const std::string& output_dir,
                         const Node_names& node_names, std::uint32_t vertex_count,
                         bool use_intensity, double intensity_threshold,
                         const Index_links& index_links, Com_result_tables& tables,
                         std::uint32_t max_clique_size) {
  Extract(k, cliques, exact_clique_count,
          Results_writer({output_dir, com_flag, run_header}, Pointers_to(tables)), node_names,
          vertex_count, use_intensity, intensity_threshold, index_links, max_clique_size);
}

void Extract_coms_ec_ret(
    std::uint32_t k, const Clique_vector& cliques, const Overlap_matrix&,
    std::uint32_t exact_clique_count, const std::string& com_flag, const std::string& run_header,
    const std::string& output_dir, const Node_names& node_names, std::uint32_t vertex_count,
    bool use_intensity, double intensity_threshold, const Index_links& index_links,
    By_k<Names_by_index>& k_cliques, By_k<Names_by_index>& communities,
    By_k<Links_by_index>& com_links, By_k<Indices_by_index>& com_cliques,
    By_k<Overlap_table>& com_graphs, By_k<Distribution_table>& size_dist_exact,
    By_k<Distribution_table>& degree_dist_exact, By_k<Distribution_table>& overlap_dist_exact,
    By_k<Distribution_table>& membership_dist_exact, By_k<Distribution_table>& size_dist_appr,
    By_k<Distribution_table>& degree_dist_appr, By_k<Distribution_table>& overlap_dist_appr,
    By_k<Distribution_table>& membership_dist_appr, By_k<Distribution_table>& size_dist_merged,
    By_k<Distribution_table>& degree_dist_merged, By_k<Distribution_table>& overlap_dist_merged,
    By_k<Distribution_table>& membership_dist_merged, std::uint32_t max_clique_size) {
  const Table_pointers tables = {nullptr,
                                 nullptr,
                                 &k_cliques,
                                 &communities,
                                 &com_links,
                                 &com_cliques,
                                 &com_graphs,
                                 &size_dist_exact,
                                 &degree_dist_exact,
                                 &overlap_dist_exact,
                                 &membership_dist_exact,
                                 &size_dist_appr,
                                 &degree_dist_appr,
                                 &overlap_dist_appr,
                                 &membership_dist_appr,
                                 &size_dist_merged,
                                 &degree_dist_merged,
                                 &overlap_dist_merged,
                                 &membership_dist_merged};
  Extract(k, cliques, exact_clique_count,
          Results_writer({output_dir, com_flag, run_header}, tables), node_names, vertex_count,
          use_intensity, intensity_threshold, index_links, max_clique_size);
}

}  // namespace gns
