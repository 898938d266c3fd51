#include "files/Graph_and_clique_files.h"

#include "control/Run_control.h"
#include "files/Result_lines.h"
#include "files/Results_names.h"
#include "foundation/io/Text_writer.h"
#include "foundation/paths/Dir_prepare.h"

namespace gns {

void Kiir_graph_ret(const Link_map& links, const std::string& output_dir, bool directed,
                    const std::string& run_header, bool weighted, Name_pairs* graph_links) {
  Dir_prepare(output_dir, "keep");
  Text_writer file(results_names::Graph(output_dir, directed));
  file << "# The links" << run_header
       << (directed ? "# (self-links were removed)\n"
                    : "# (mutual links and self-links were removed)\n")
       << '\n';
  for (std::size_t i = 0; i < links.size(); ++i) {
    external_control::Check_inside_long_stage();
    file << links.First(i) << ' ' << links.Second(i);
    if (weighted) file << ' ' << links.Weight(i);
    file << '\n';
    if (graph_links != nullptr) graph_links->push_back(links.First(i), links.Second(i));
  }
}

void Kiir_cliques_VL_ret(const std::string& output_dir, const Clique_vector& cliques,
                         const Node_names& node_names, std::uint32_t exact_clique_count,
                         const std::string& com_flag, const std::string& run_header,
                         Names_by_index* table) {
  Dir_prepare(output_dir, "keep");
  Text_writer file(results_names::Cliques(output_dir, com_flag));
  const std::string flag = results_names::Clique_flag(com_flag);
  file << "# The " << results_names::Lead(flag, ' ') << "cliques" << run_header;
  if (exact_clique_count < cliques.size())
    file << "# Negative indices indicate approximate cliques.\n";
  file << '\n';
  const Filling filling(table);
  for (std::uint32_t i = 0; i < cliques.size(); ++i)
    Write_members(file, i, exact_clique_count, cliques[i], node_names, table);
}

void Kiir_k_cliques_VL_ret(const std::string& output_dir, const K_cliques& k_cliques,
                           std::uint32_t k, const Node_names& node_names,
                           const std::string& run_header, By_k<Names_by_index>* tables) {
  const std::string dir_of_k = results_names::Dir_of_k(output_dir, k);
  Dir_prepare(dir_of_k, "keep");
  Text_writer file(results_names::K_cliques(dir_of_k));
  file << "# The k-cliques at k=" << k << run_header << '\n';
  Entry_of_k<Names_by_index> entry(tables, k);
  const auto count = static_cast<std::uint32_t>(k_cliques.size());
  for (std::uint32_t i = 0; i < count; ++i) {
    external_control::Check_inside_long_stage();
    Write_members(file, i, count, k_cliques[i], node_names, entry.Get());
  }
  entry.Complete();
}

}  // namespace gns
