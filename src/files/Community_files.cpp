#include "files/Community_files.h"

#include "files/Level_writer.h"
#include "files/Results_writer.h"

namespace gns {

void Kiir_coms_VL_ret(const Row_array<Node_index>& coms, const std::string& output_dir,
                      std::uint32_t k, const Node_names& node_names, std::uint32_t exact_com_count,
                      const std::string& com_flag, const std::string& run_header,
                      By_k<Names_by_index>* tables) {
  const Results_writer results({output_dir, com_flag, run_header}, {.communities = tables});
  Level_writer(results, k).Write_communities(coms, exact_com_count, node_names);
}

void Kiir_coms_cliques_VL_ret(const Row_array<Clique_index>& com_cliques,
                              const std::string& output_dir, std::uint32_t k,
                              std::uint32_t exact_com_count, std::uint32_t exact_clique_count,
                              const std::string& com_flag, const std::string& run_header,
                              By_k<Indices_by_index>* tables) {
  const Results_writer results({output_dir, com_flag, run_header}, {.com_cliques = tables});
  Level_writer(results, k).Write_com_cliques(com_cliques, exact_com_count, exact_clique_count);
}

void Kiir_com_links_VL_ret(const Row_array<Index_pair>& com_links, const std::string& output_dir,
                           std::uint32_t k, const Node_names& node_names,
                           std::uint32_t exact_com_count, const std::string& com_flag,
                           const std::string& run_header, By_k<Links_by_index>* tables,
                           const Index_links& index_links) {
  const Results_writer results({output_dir, com_flag, run_header}, {.com_links = tables});
  Level_writer(results, k).Write_com_links(com_links, exact_com_count, index_links, node_names);
}

void Kiir_com_links_VL_ret(const K_clique_com_links& com_links, const std::string& output_dir,
                           std::uint32_t k, const Node_names& node_names,
                           std::uint32_t exact_com_count, const std::string& com_flag,
                           const std::string& run_header, By_k<Links_by_index>* tables) {
  const Results_writer results({output_dir, com_flag, run_header}, {.com_links = tables});
  Level_writer(results, k).Write_com_links(com_links, exact_com_count, node_names);
}

void Kiir_com_graph_VL_ret(const Com_graph& com_graph, std::uint32_t exact_com_count,
                           const std::string& output_dir, std::uint32_t k,
                           const std::string& com_flag, const std::string& run_header,
                           By_k<Overlap_table>* tables) {
  const Results_writer results({output_dir, com_flag, run_header}, {.com_graphs = tables});
  Level_writer(results, k).Write_com_graph(com_graph, exact_com_count);
}

}  // namespace gns
