#pragma once

#include <cstdint>
#include <string>

#include "communities/Community_statistics.h"
#include "graph/Index_links.h"
#include "graph/Node_names.h"
#include "graph/Row_array.h"
#include "intensity/K_clique_communities.h"
#include "results/Com_result_tables.h"
#include "search/Clique_vector.h"

namespace gns {

/// The four files of the communities at one k. Community indices at and behind `exact_com_count`
/// carry a minus sign. All of them prepare the directory of the k. Each writer has a form with
/// "_ret" that also fills a table of results, if it is given one, by reference or by its address:
/// the entry of the k is replaced when the file is complete.

/// A line per community: its index and its members' names.
void Kiir_coms_VL_ret(const Row_array<Node_index>& coms, const std::string& output_dir,
                      std::uint32_t k, const Node_names& node_names, std::uint32_t exact_com_count,
                      const std::string& com_flag, const std::string& run_header,
                      By_k<Names_by_index>* tables);
inline void Kiir_coms_VL_ret(const Row_array<Node_index>& coms, const std::string& output_dir,
                             std::uint32_t k, const Node_names& node_names,
                             std::uint32_t exact_com_count, const std::string& com_flag,
                             const std::string& run_header, By_k<Names_by_index>& tables) {
  Kiir_coms_VL_ret(coms, output_dir, k, node_names, exact_com_count, com_flag, run_header, &tables);
}
inline void Kiir_coms_VL(const Row_array<Node_index>& coms, const std::string& output_dir,
                         std::uint32_t k, const Node_names& node_names,
                         std::uint32_t exact_com_count, const std::string& com_flag,
                         const std::string& run_header) {
  Kiir_coms_VL_ret(coms, output_dir, k, node_names, exact_com_count, com_flag, run_header, nullptr);
}

/// A line per community: its index and the indices of its cliques in claim order. On the lines of
/// approximate communities clique indices at and behind `exact_clique_count` carry a minus sign.
void Kiir_coms_cliques_VL_ret(const Row_array<Clique_index>& com_cliques,
                              const std::string& output_dir, std::uint32_t k,
                              std::uint32_t exact_com_count, std::uint32_t exact_clique_count,
                              const std::string& com_flag, const std::string& run_header,
                              By_k<Indices_by_index>* tables);
inline void Kiir_coms_cliques_VL_ret(const Row_array<Clique_index>& com_cliques,
                                     const std::string& output_dir, std::uint32_t k,
                                     std::uint32_t exact_com_count,
                                     std::uint32_t exact_clique_count, const std::string& com_flag,
                                     const std::string& run_header,
                                     By_k<Indices_by_index>& tables) {
  Kiir_coms_cliques_VL_ret(com_cliques, output_dir, k, exact_com_count, exact_clique_count,
                           com_flag, run_header, &tables);
}
inline void Kiir_coms_cliques_VL(const Row_array<Clique_index>& com_cliques,
                                 const std::string& output_dir, std::uint32_t k,
                                 std::uint32_t exact_com_count, std::uint32_t exact_clique_count,
                                 const std::string& com_flag, const std::string& run_header) {
  Kiir_coms_cliques_VL_ret(com_cliques, output_dir, k, exact_com_count, exact_clique_count,
                           com_flag, run_header, nullptr);
}

/// A block per community: a head line with its index, then a line per link. A link that
/// `index_links` holds from the smaller to the greater index is shown so, any other the other way.
void Kiir_com_links_VL_ret(const Row_array<Index_pair>& com_links, const std::string& output_dir,
                           std::uint32_t k, const Node_names& node_names,
                           std::uint32_t exact_com_count, const std::string& com_flag,
                           const std::string& run_header, By_k<Links_by_index>* tables,
                           const Index_links& index_links);
inline void Kiir_com_links_VL_ret(const Row_array<Index_pair>& com_links,
                                  const std::string& output_dir, std::uint32_t k,
                                  const Node_names& node_names, std::uint32_t exact_com_count,
                                  const std::string& com_flag, const std::string& run_header,
                                  By_k<Links_by_index>& tables, const Index_links& index_links) {
  Kiir_com_links_VL_ret(com_links, output_dir, k, node_names, exact_com_count, com_flag, run_header,
                        &tables, index_links);
}
inline void Kiir_com_links_VL(const Row_array<Index_pair>& com_links, const std::string& output_dir,
                              std::uint32_t k, const Node_names& node_names,
                              std::uint32_t exact_com_count, const std::string& com_flag,
                              const std::string& run_header, const Index_links& index_links) {
  Kiir_com_links_VL_ret(com_links, output_dir, k, node_names, exact_com_count, com_flag, run_header,
                        nullptr, index_links);
}
/// The same for links inside k-cliques, which the link map holds from the smaller index to the
/// greater; they are computed while they are written.
void Kiir_com_links_VL_ret(const K_clique_com_links& com_links, const std::string& output_dir,
                           std::uint32_t k, const Node_names& node_names,
                           std::uint32_t exact_com_count, const std::string& com_flag,
                           const std::string& run_header, By_k<Links_by_index>* tables);

/// A line per pair of communities that share nodes: two indices and the number of nodes.
void Kiir_com_graph_VL_ret(const Com_graph& com_graph, std::uint32_t exact_com_count,
                           const std::string& output_dir, std::uint32_t k,
                           const std::string& com_flag, const std::string& run_header,
                           By_k<Overlap_table>* tables);
inline void Kiir_com_graph_VL_ret(const Com_graph& com_graph, std::uint32_t exact_com_count,
                                  const std::string& output_dir, std::uint32_t k,
                                  const std::string& com_flag, const std::string& run_header,
                                  By_k<Overlap_table>& tables) {
  Kiir_com_graph_VL_ret(com_graph, exact_com_count, output_dir, k, com_flag, run_header, &tables);
}
inline void Kiir_com_graph_VL(const Com_graph& com_graph, std::uint32_t exact_com_count,
                              const std::string& output_dir, std::uint32_t k,
                              const std::string& com_flag, const std::string& run_header) {
  Kiir_com_graph_VL_ret(com_graph, exact_com_count, output_dir, k, com_flag, run_header, nullptr);
}

}  // namespace gns
