#pragma once

#include <vector>

#include "Literal_intensity.h"
#include "graph/Index_links.h"
#include "graph/Link_conversion.h"
#include "search/Undirected_search.h"

namespace gns {

/// A weighted graph with its maximal cliques.
struct Weighted_sample {
  Weighted_sample(const literal::Links& the_links, Node_index nodes) : links(the_links) {
    std::vector<Index_pair> keys;
    std::vector<double> weights;
    for (const auto& [link, weight] : links) {
      keys.push_back({link.first, link.second});
      weights.push_back(weight);
    }
    index_links = Index_links(keys, weights, nodes);
    Vertex_map vertices;
    Vtx_map_from_link_map(vertices, index_links);
    Overlap_matrix matrix;
    Clique_find_ec(cliques, matrix, vertices);
  }

  literal::Links links;
  Index_links index_links;
  Clique_vector cliques;
};

}  // namespace gns
