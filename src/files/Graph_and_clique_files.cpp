#include "files/Graph_and_clique_files.h"

#include "files/Level_writer.h"
#include "files/Results_writer.h"
#include "results/Method.h"

namespace gns {

void Kiir_graph_ret(const Link_map& links, const std::string& output_dir, bool directed,
                    const std::string& run_header, bool weighted, Name_pairs* graph_links) {
  const std::string flag = Flag_of(directed ? Method::directed : Method::undirected);
  Results_writer({output_dir, flag, run_header}, {.graph_links = graph_links})
      .Write_graph(links, weighted);
}

void Kiir_cliques_VL_ret(const std::string& output_dir, const Clique_vector& cliques,
                         const Node_names& node_names, std::uint32_t exact_clique_count,
                         const std::string& com_flag, const std::string& run_header,
                         Names_by_index* table) {
  Results_writer({output_dir, com_flag, run_header}, {.cliques = table})
      .Write_cliques(cliques, exact_clique_count, node_names);
}

void Kiir_k_cliques_VL_ret(const std::string& output_dir, const K_cliques& k_cliques,
                           std::uint32_t k, const Node_names& node_names,
                           const std::string& run_header, By_k<Names_by_index>* tables) {
  const Results_writer results({output_dir, Flag_of(Method::intensity), run_header},
                               {.k_cliques = tables});
  Level_writer(results, k).Write_k_cliques(k_cliques, node_names);
}

}  // namespace gns
