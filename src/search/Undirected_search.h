#pragma once

#include <vector>

#include "graph/Vertex_map.h"
#include "search/Attempt.h"
#include "search/Clique_vector.h"
#include "search/Clique_walk.h"
#include "search/Node_search.h"
#include "search/Search_graph.h"

namespace gns {

/// Finds the cliques of a node of an undirected graph, in ascending lexicographic order.
class Undirected_node_search : public Node_search {
 public:
  Undirected_node_search(const Vertex_map& vtx_map, const Node_order& order)
      : graph_(vtx_map, order) {}

  void Find(Node_index node, Attempt& attempt, Clique_vector& cliques) override;
  void Finish(Node_index node) override { graph_.Finish(node); }

 private:
  void Sort_found();

  Search_graph graph_;
  Clique_walk walk_;
  Local_graph local_;
  std::vector<Bit_word> found_;
  std::vector<Bit_word> sorted_;
  std::vector<std::uint32_t> places_;
};

/// Finds all maximal cliques of three nodes or more of an undirected graph.
///
/// A clique is found with that member that comes first in the order of Sort_Vtx_map; cliques stand
/// in that order of nodes, and those of one node in ascending lexicographic order. Keeps the state
/// report up to date and polls the stop flag, which ends the search by an exception.
void Clique_find_ec(Clique_vector& cliques, const Vertex_map& vtx_map);

}  // namespace gns
