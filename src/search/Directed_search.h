#pragma once

#include <span>
#include <vector>

#include "graph/Vertex_map.h"
#include "search/Attempt.h"
#include "search/Clique_vector.h"
#include "search/Clique_walk.h"
#include "search/Gap_order.h"
#include "search/Left_map.h"
#include "search/Node_search.h"
#include "search/Overlap_matrix.h"
#include "search/Unfinished_graph.h"

namespace gns {

/// Finds the directed cliques of a node, in the order of Gap_order.
class Directed_node_search : public Sliced_node_search {
 public:
  /// `graph` must outlive the object.
  explicit Directed_node_search(const Search_graph& graph) : graph_(graph) {}

  void Find(Node_index node, Attempt& attempt, Clique_vector& cliques) override;
  void Find_slice(Node_index node, const Walk_slice& slice, Clique_vector& cliques) override;
  void Join(Node_index node, std::span<const Clique_vector* const> slices,
            Clique_vector& cliques) override;
  void Finish(Node_index node) override { graph_.Finish(node); }

 private:
  void Record_in_order(Attempt& attempt, Clique_vector& cliques);

  Unfinished_graph graph_;
  Clique_walk walk_;
  Gap_order order_;
  Local_graph local_;
  std::vector<Bit_word> found_;
};

/// Finds all maximal directed cliques of three nodes or more of a directed graph. A directed clique
/// is a set of nodes that can be put in a sequence in which every node has a link to each node
/// behind it; links in the reverse direction don't matter.
///
/// A clique is found with that member that comes first in the order of Sort_dir_vtx_map by
/// "Neighs"; cliques stand in that order of nodes, and those of one node in the order of Gap_order.
/// The matrix is a view of `cliques`. Keeps the state report up to date and polls the stop flag,
/// which ends the search by an exception.
void Clique_find_dir_ec(Clique_vector& cliques, Overlap_matrix& overlap_matrix,
                        const Dir_vertex_map& dir_vtx_map);

/// The same with a limit on the processor time of each attempt on a node; see Search_queue. All
/// cliques that it yields are maximal; some are missing if `left_map` isn't empty at its end.
void Clique_find_dir_time_ec(Clique_vector& cliques, Overlap_matrix& overlap_matrix,
                             const Dir_vertex_map& dir_vtx_map, Left_map& left_map,
                             const Time_limit& time_limit);

/// The limit in seconds.
inline void Clique_find_dir_time_ec(Clique_vector& cliques, Overlap_matrix& overlap_matrix,
                                    const Dir_vertex_map& dir_vtx_map, Left_map& left_map,
                                    double time_limit) {
  Clique_find_dir_time_ec(cliques, overlap_matrix, dir_vtx_map, left_map,
                          Time_limit{.seconds = time_limit});
}

}  // namespace gns
