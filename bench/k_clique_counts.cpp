// Counts k-cliques at every k from 3 on: k_clique_counts LINKS THRESHOLD.
//
// Prints one line: k-subsets of all cliques, which an enumeration of each clique goes through;
// k-cliques, whole or begun, that the search visited; k-cliques found.
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <iostream>

#include "control/Clique_find_ext_cont.h"
#include "graph/Link_conversion.h"
#include "input/Link_file_reader.h"
#include "intensity/K_clique_generation.h"
#include "percolation/Coms_funcs.h"
#include "search/Undirected_search.h"

namespace {

double Subsets(std::size_t nodes, std::uint32_t k) {
  double count = 1.0;
  for (std::uint32_t i = 0; i < k; ++i) count *= static_cast<double>(nodes - i) / (i + 1.0);
  return std::round(count);
}

void Count(const char* file, double threshold) {
  gns::Link_map links;
  gns::Index_links index_links;
  gns::Node_names names;
  gns::Vertex_map vertices;
  gns::Clique_vector cliques;
  gns::Read_weighted_links(file, links, false, 0.0, false, 0.0);
  gns::Convert_s_links(index_links, names, links, false);
  gns::Vtx_map_from_link_map(vertices, index_links);
  gns::Overlap_matrix matrix;
  gns::Clique_find_ec(cliques, matrix, vertices);

  const gns::Weighted_cliques weighted(cliques, index_links);
  double subsets = 0.0;
  std::uint64_t visited = 0;
  std::size_t found = 0;
  for (std::uint32_t k = weighted.Largest_clique(); k >= 3; --k) {
    for (std::size_t i = 0; i < cliques.size(); ++i)
      if (cliques[i].size() >= k) subsets += Subsets(cliques[i].size(), k);
    gns::K_cliques k_cliques(k);
    gns::Generate_k_cls_from_cls_ec(weighted, k_cliques, k, threshold);
    visited += external_control::PROGRESS.k_cliques_visited.load();
    found += k_cliques.size();
  }
  std::cout << subsets << " " << visited << " " << found << "\n";
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 3) {
    std::cerr << "usage: " << argv[0] << " LINKS THRESHOLD\n";
    return 2;
  }
  try {
    Count(argv[1], std::strtod(argv[2], nullptr));
    return 0;
  } catch (const std::exception& failure) {
    std::cerr << failure.what() << "\n";
    return 1;
  }
}
