#include "engine/Extract_coms.h"

#include <algorithm>
#include <sstream>

#include "communities/Coms_funcs.h"
#include "communities/K_clique_communities.h"
#include "communities/K_clique_generation.h"
#include "control/Clique_find_ext_cont.h"
#include "files/Community_files.h"
#include "files/Graph_and_clique_files.h"
#include "files/Statistics_files.h"

namespace gns {

namespace {

using external_control::Check_for_stop_signal;
using external_control::CURRENT_STATE_REPORT;

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
  CURRENT_STATE_REPORT = " Writing commmunities to disk...\n";
  Write_communities(k, communities);
  CURRENT_STATE_REPORT = " done.\n";
  Check_for_stop_signal();

  Com_graph com_graph;
  Prepare_community_graph(com_graph, communities.coms);
  Kiir_com_graph_VL(com_graph, communities.exact_com_count, input_.output_dir, k, input_.com_flag,
                    input_.run_header);
  Check_for_stop_signal();
  CURRENT_STATE_REPORT = " Calculating statistics...\n";
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
  CURRENT_STATE_REPORT = "__________________________\n Writing k-clques to disk.\n";
  Kiir_k_cliques_VL(input_.output_dir, k_cliques, k, input_.node_names, input_.run_header);
  Intensity_coms_from_k_cliques_ec(k_cliques, communities.coms, com_k_cliques, cliques.Logs(),
                                   input_.intensity_threshold);
  communities.exact_com_count = static_cast<std::uint32_t>(communities.size());
  return communities;
}

const Communities& Extraction::Find_by_overlap(std::uint32_t k) {
  std::ostringstream report;
  Coms_report_sub::Report_com_export(k, input_.max_clique_size, report);
  CURRENT_STATE_REPORT = report.str();
  const Communities& communities = percolation_->At(k);
  CURRENT_STATE_REPORT = " done.\n";
  return communities;
}

void Extraction::Write_communities(std::uint32_t k, const Communities& communities) const {
  Kiir_coms_VL(communities.coms, input_.output_dir, k, input_.node_names,
               communities.exact_com_count, input_.com_flag, input_.run_header);
  if (input_.use_intensity) {
    Kiir_com_links_VL(K_clique_com_links(by_intensity_->k_cliques, by_intensity_->com_k_cliques),
                      input_.output_dir, k, input_.node_names, communities.exact_com_count,
                      input_.com_flag, input_.run_header);
    return;
  }
  Kiir_coms_cliques_VL(communities.com_cliques, input_.output_dir, k, communities.exact_com_count,
                       input_.exact_clique_count, input_.com_flag, input_.run_header);
  Kiir_com_links_VL(communities.com_links, input_.output_dir, k, input_.node_names,
                    communities.exact_com_count, input_.com_flag, input_.run_header,
                    input_.index_links);
}

/// Writes one set of distributions, or, where some communities are approximate, three. Yields the
/// membership distribution over all communities.
Distribution Extraction::Write_statistics(std::uint32_t k, const Communities& communities,
                                          const Com_graph& com_graph) const {
  const auto write = [&](const Statistics& s, const std::string& stat_flag) {
    Kiir_stats_VL(s.membership, s.size, s.overlap, s.degree, input_.output_dir, k, input_.com_flag,
                  stat_flag, input_.run_header);
  };
  Statistics all;
  Community_statistics(all.size, all.degree, all.overlap, all.membership, communities.coms,
                       com_graph, input_.vertex_count);
  const std::size_t exact_count = communities.exact_com_count;
  if (communities.size() <= exact_count) {
    CURRENT_STATE_REPORT = " done.\n";
    write(all, "");
    return all.membership;
  }
  const Statistics exact =
      Statistics_of(Copy_rows(communities.coms, 0, exact_count), input_.vertex_count);
  const Statistics approximate = Statistics_of(
      Copy_rows(communities.coms, exact_count, communities.size()), input_.vertex_count);
  CURRENT_STATE_REPORT = " done.\n";
  write(all, "_merged");
  write(exact, "_exact");
  write(approximate, "_appr");
  return all.membership;
}

}  // namespace gns
