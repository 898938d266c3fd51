#include "engine/Extract_coms.h"

#include <algorithm>
#include <sstream>

#include "control/Run_control.h"
#include "files/Community_files.h"
#include "files/Graph_and_clique_files.h"
#include "files/Statistics_files.h"
#include "intensity/K_clique_communities.h"
#include "intensity/K_clique_generation.h"
#include "percolation/Coms_funcs.h"

namespace gns {

namespace {

using external_control::Check_for_stop_signal;
using external_control::Report_state;

/// The four distributions of a set of communities.
struct Statistics {
  Distribution size;
  Distribution degree;
  Distribution overlap;
  Distribution membership;
};

Statistics Statistics_of(const Row_array<Node_index>& coms, std::uint32_t vertex_count) {
  Statistics s;
  Community_statistics(s.size, s.degree, s.overlap, s.membership, coms, vertex_count);
  return s;
}

Row_array<Node_index> Copy_rows(const Row_array<Node_index>& rows, std::size_t first,
                                std::size_t last) {
  Row_array<Node_index> copy;
  for (std::size_t row = first; row < last; ++row) copy.push_back(rows[row]);
  return copy;
}

}  // namespace

Extraction::Extraction(const Extraction_input& input) : input_(input) {
  if (input.use_intensity)
    by_intensity_.emplace(input);
  else
    percolation_.emplace(input.cliques, input.exact_clique_count, false);
}

K_summary Extraction::At(std::uint32_t k) {
  const Communities& communities = Find_communities(k);
  Check_for_stop_signal();
  Report_state(" Writing commmunities to disk...\n");
  Write_communities(k, communities);
  Report_state(" done.\n");
  Check_for_stop_signal();

  Com_graph com_graph;
  Prepare_community_graph(com_graph, communities.coms);
  Kiir_com_graph_VL_ret(com_graph, communities.exact_com_count, input_.output_dir, k,
                        input_.com_flag, input_.run_header, input_.tables.com_graphs);
  Check_for_stop_signal();
  Report_state(" Calculating statistics...\n");
  const Distribution membership = Write_statistics(k, communities, com_graph);

  K_summary summary;
  summary.k = k;
  summary.communities = communities.size();
  for (std::size_t com = 0; com < communities.size(); ++com)
    summary.largest = std::max(summary.largest, communities.coms[com].size());
  summary.nodes_covered = input_.vertex_count - membership.at(0);
  return summary;
}

const Communities& Extraction::Find_communities(std::uint32_t k) {
  return input_.use_intensity ? Find_by_intensity(k) : Find_by_overlap(k);
}

const Communities& Extraction::Find_by_intensity(std::uint32_t k) {
  auto& [cliques, k_cliques, com_k_cliques, communities] = *by_intensity_;
  Generate_k_cls_from_cls_ec(cliques, k_cliques, k, input_.intensity_threshold);
  Report_state("__________________________\n Writing k-clques to disk.\n");
  Kiir_k_cliques_VL_ret(input_.output_dir, k_cliques, k, input_.node_names, input_.run_header,
                        input_.tables.k_cliques);
  Intensity_coms_from_k_cliques_ec(k_cliques, communities.coms, com_k_cliques, cliques.Logs(),
                                   input_.intensity_threshold);
  communities.exact_com_count = static_cast<std::uint32_t>(communities.size());
  return communities;
}

const Communities& Extraction::Find_by_overlap(std::uint32_t k) {
  std::ostringstream report;
  Coms_report_sub::Report_com_export(k, input_.max_clique_size, report);
  Report_state(report.str());
  const Communities& communities = percolation_->At(k);
  Report_state(" done.\n");
  return communities;
}

void Extraction::Write_communities(std::uint32_t k, const Communities& communities) const {
  Kiir_coms_VL_ret(communities.coms, input_.output_dir, k, input_.node_names,
                   communities.exact_com_count, input_.com_flag, input_.run_header,
                   input_.tables.communities);
  auto* const com_links = input_.tables.com_links;
  if (input_.use_intensity) {
    Kiir_com_links_VL_ret(
        K_clique_com_links(by_intensity_->k_cliques, by_intensity_->com_k_cliques),
        input_.output_dir, k, input_.node_names, communities.exact_com_count, input_.com_flag,
        input_.run_header, com_links);
    return;
  }
  Kiir_coms_cliques_VL_ret(communities.com_cliques, input_.output_dir, k,
                           communities.exact_com_count, input_.exact_clique_count, input_.com_flag,
                           input_.run_header, input_.tables.com_cliques);
  Kiir_com_links_VL_ret(communities.com_links, input_.output_dir, k, input_.node_names,
                        communities.exact_com_count, input_.com_flag, input_.run_header, com_links,
                        input_.index_links);
}

/// Writes one set of distributions, or, where some communities are approximate, three. Yields the
/// membership distribution over all communities.
Distribution Extraction::Write_statistics(std::uint32_t k, const Communities& communities,
                                          const Com_graph& com_graph) const {
  const auto write = [&](const Statistics& s, const std::string& stat_flag,
                         const Statistics_tables& tables) {
    Kiir_stats_VL_ret(s.membership, s.size, s.overlap, s.degree, input_.output_dir, k,
                      input_.com_flag, stat_flag, input_.run_header, tables);
  };
  const Table_pointers& t = input_.tables;
  const Statistics_tables exact_tables = {t.membership_dist_exact, t.size_dist_exact,
                                          t.overlap_dist_exact, t.degree_dist_exact};
  Statistics all;
  Community_statistics(all.size, all.degree, all.overlap, all.membership, communities.coms,
                       com_graph, input_.vertex_count);
  const std::size_t exact_count = communities.exact_com_count;
  if (communities.size() <= exact_count) {
    Report_state(" done.\n");
    write(all, "", exact_tables);
    return all.membership;
  }
  const Statistics exact =
      Statistics_of(Copy_rows(communities.coms, 0, exact_count), input_.vertex_count);
  const Statistics approximate = Statistics_of(
      Copy_rows(communities.coms, exact_count, communities.size()), input_.vertex_count);
  Report_state(" done.\n");
  write(
      all, "_merged",
      {t.membership_dist_merged, t.size_dist_merged, t.overlap_dist_merged, t.degree_dist_merged});
  write(exact, "_exact", exact_tables);
  write(approximate, "_appr",
        {t.membership_dist_appr, t.size_dist_appr, t.overlap_dist_appr, t.degree_dist_appr});
  return all.membership;
}

void Extract_coms_ec(std::uint32_t k, const Clique_vector& cliques, const Overlap_matrix&,
                     std::uint32_t exact_clique_count, const std::string& com_flag,
                     const std::string& run_header, const std::string& output_dir,
                     const Node_names& node_names, std::uint32_t vertex_count, bool use_intensity,
                     double intensity_threshold, const Index_links& index_links,
                     std::uint32_t max_clique_size) {
  Extraction({cliques, exact_clique_count, com_flag, run_header, output_dir, node_names,
              vertex_count, index_links, max_clique_size, use_intensity, intensity_threshold})
      .At(k);
}

void Extract_coms_ec_ret(std::uint32_t k, const Clique_vector& cliques, const Overlap_matrix&,
                         std::uint32_t exact_clique_count, const std::string& com_flag,
                         const std::string& run_header, const std::string& output_dir,
                         const Node_names& node_names, std::uint32_t vertex_count,
                         bool use_intensity, double intensity_threshold,
                         const Index_links& index_links, Com_result_tables& tables,
                         std::uint32_t max_clique_size) {
  Extraction({cliques, exact_clique_count, com_flag, run_header, output_dir, node_names,
              vertex_count, index_links, max_clique_size, use_intensity, intensity_threshold,
              Pointers_to(tables)})
      .At(k);
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
  Extraction({cliques, exact_clique_count, com_flag, run_header, output_dir, node_names,
              vertex_count, index_links, max_clique_size, use_intensity, intensity_threshold,
              tables})
      .At(k);
}

}  // namespace gns
