// Prints the k-clique communities of a link file, and the people in more than one of them, without
// writing a file: find_communities LINK_FILE K

#include <exception>
#include <iostream>
#include <vector>

#include "vorlane.h"

namespace {

void Print_communities(const std::string& link_file, std::uint32_t k) {
  gns::Link_map links;
  gns::Read_unw_links(link_file, links);

  gns::Index_links index_links;
  gns::Node_names names;
  gns::Convert_s_links(index_links, names, links, /*directed=*/false);
  gns::Vertex_map graph;
  gns::Vtx_map_from_link_map(graph, index_links);

  gns::Clique_vector cliques;
  gns::Overlap_matrix overlaps;
  gns::Clique_find_ec(cliques, overlaps, graph);
  const auto exact_cliques = static_cast<std::uint32_t>(cliques.size());

  // One object serves every k; it is cheapest to ask for them in descending order.
  gns::Percolation percolation(cliques, exact_cliques, /*nested=*/false);
  const auto communities = percolation.At(k);
  const gns::Communities& found = *communities;

  std::vector<int> memberships(graph.size() + std::size_t{1}, 0);
  for (std::size_t i = 0; i < found.size(); ++i) {
    std::cout << "community " << i << ":";
    for (const gns::Node_index node : found.coms[i]) {
      std::cout << ' ' << names[node];
      ++memberships[node];
    }
    std::cout << '\n';
  }
  for (gns::Node_index node = 1; node <= graph.size(); ++node)
    if (memberships[node] > 1)
      std::cout << names[node] << " is in " << memberships[node] << " communities\n";
}

}  // namespace

int main(int argc, char** argv) {
  try {
    std::uint32_t k = 0;
    bool suspicious = false;
    if (argc != 3 || !gns::Convert_from_string(argv[2], k, suspicious) || k < 3) {
      std::cerr << "usage: find_communities LINK_FILE K, with K at least 3\n";
      return 2;
    }
    Print_communities(argv[1], k);
    return 0;
  } catch (const std::exception& failure) {
    std::cerr << failure.what() << '\n';
    return 1;
  }
}
