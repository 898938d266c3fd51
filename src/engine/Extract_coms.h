#pragma once

#include <cstdint>
#include <string>

#include "graph/Index_links.h"
#include "graph/Node_names.h"
#include "results/Com_result_tables.h"
#include "search/Clique_vector.h"
#include "search/Overlap_matrix.h"

namespace gns {

/// One k by itself. `overlap_matrix` is a view of the cliques and isn't asked. A run over many k is
/// cheaper with one Levels.
void Extract_coms_ec(std::uint32_t k, const Clique_vector& cliques,
                     const Overlap_matrix& overlap_matrix, std::uint32_t exact_clique_count,
                     const std::string& com_flag, const std::string& run_header,
                     const std::string& output_dir, const Node_names& node_names,
                     std::uint32_t vertex_count, bool use_intensity, double intensity_threshold,
                     const Index_links& index_links, std::uint32_t max_clique_size);

/// The same, filling the tables of this k too.
void Extract_coms_ec_ret(std::uint32_t k, const Clique_vector& cliques,
                         const Overlap_matrix& overlap_matrix, std::uint32_t exact_clique_count,
                         const std::string& com_flag, const std::string& run_header,
                         const std::string& output_dir, const Node_names& node_names,
                         std::uint32_t vertex_count, bool use_intensity, double intensity_threshold,
                         const Index_links& index_links, Com_result_tables& tables,
                         std::uint32_t max_clique_size);

/// The same with the tables of the k one by one: the last seventeen of Com_result_tables.
void Extract_coms_ec_ret(
    std::uint32_t k, const Clique_vector& cliques, const Overlap_matrix& overlap_matrix,
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
    By_k<Distribution_table>& membership_dist_merged, std::uint32_t max_clique_size);

}  // namespace gns
