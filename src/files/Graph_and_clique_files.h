#pragma once

#include <cstdint>
#include <string>

#include "graph/Link_map.h"
#include "graph/Node_names.h"
#include "intensity/K_cliques.h"
#include "results/Com_result_tables.h"
#include "search/Clique_vector.h"

namespace gns {

/// The files outside the directories of the k, and the k-clique files. Each writer has a form with
/// "_ret" that also fills a table of results, if it is given one: by reference, or by its address.

/// Writes the links as they were accepted, one per line, with the weight if `weighted`. They are
/// appended to the table.
void Kiir_graph_ret(const Link_map& links, const std::string& output_dir, bool directed,
                    const std::string& run_header, bool weighted, Name_pairs* graph_links);
inline void Kiir_graph_ret(const Link_map& links, const std::string& output_dir, bool directed,
                           const std::string& run_header, bool weighted, Name_pairs& graph_links) {
  Kiir_graph_ret(links, output_dir, directed, run_header, weighted, &graph_links);
}
inline void Kiir_graph(const Link_map& links, const std::string& output_dir, bool directed,
                       const std::string& run_header, bool weighted) {
  Kiir_graph_ret(links, output_dir, directed, run_header, weighted, nullptr);
}

/// Writes a line per clique: its index and its members' names. Indices at and behind
/// `exact_clique_count` carry a minus sign.
void Kiir_cliques_VL_ret(const std::string& output_dir, const Clique_vector& cliques,
                         const Node_names& node_names, std::uint32_t exact_clique_count,
                         const std::string& com_flag, const std::string& run_header,
                         Names_by_index* table);
inline void Kiir_cliques_VL_ret(const std::string& output_dir, const Clique_vector& cliques,
                                const Node_names& node_names, std::uint32_t exact_clique_count,
                                const std::string& com_flag, const std::string& run_header,
                                Names_by_index& table) {
  Kiir_cliques_VL_ret(output_dir, cliques, node_names, exact_clique_count, com_flag, run_header,
                      &table);
}
inline void Kiir_cliques_VL(const std::string& output_dir, const Clique_vector& cliques,
                            const Node_names& node_names, std::uint32_t exact_clique_count,
                            const std::string& com_flag, const std::string& run_header) {
  Kiir_cliques_VL_ret(output_dir, cliques, node_names, exact_clique_count, com_flag, run_header,
                      nullptr);
}

/// Writes a line per k-clique into the directory of the k: its index and its members' names. Polls
/// the stop flag as a long stage does.
void Kiir_k_cliques_VL_ret(const std::string& output_dir, const K_cliques& k_cliques,
                           std::uint32_t k, const Node_names& node_names,
                           const std::string& run_header, By_k<Names_by_index>* tables);
inline void Kiir_k_cliques_VL_ret(const std::string& output_dir, const K_cliques& k_cliques,
                                  std::uint32_t k, const Node_names& node_names,
                                  const std::string& run_header, By_k<Names_by_index>& tables) {
  Kiir_k_cliques_VL_ret(output_dir, k_cliques, k, node_names, run_header, &tables);
}
inline void Kiir_k_cliques_VL(const std::string& output_dir, const K_cliques& k_cliques,
                              std::uint32_t k, const Node_names& node_names,
                              const std::string& run_header) {
  Kiir_k_cliques_VL_ret(output_dir, k_cliques, k, node_names, run_header, nullptr);
}

}  // namespace gns
