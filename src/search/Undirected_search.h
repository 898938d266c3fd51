#pragma once

#include <span>
#include <vector>

#include "graph/Vertex_map.h"
#include "search/Attempt.h"
#include "search/Clique_vector.h"
#include "search/Clique_walk.h"
#include "search/Left_map.h"
#include "search/Node_search.h"
#include "search/Overlap_matrix.h"
#include "search/Unfinished_graph.h"

namespace gns {

/// Finds the cliques of a node of an undirected graph, in ascending lexicographic order (in any
/// order where the attempt runs over).
class Undirected_node_search : public Sliced_node_search {
 public:
  /// Cliques of fewer than `least_size` nodes are left out. `graph` must outlive the object.
  explicit Undirected_node_search(const Search_graph& graph, std::size_t least_size = 3)
      : graph_(graph), walk_(least_size) {}

  void Find(Node_index node, Attempt& attempt, Clique_vector& cliques) override;
  void Find_slice(Node_index node, const Walk_slice& slice, Clique_vector& cliques) override;
  void Join(Node_index node, std::span<const Clique_vector* const> slices,
            Clique_vector& cliques) override;
  void Finish(Node_index node) override { graph_.Finish(node); }

 private:
  void Find(Node_index node, const Walk_slice& slice, Attempt& attempt, Clique_vector& cliques);
  void Sort_found();

  Unfinished_graph graph_;
  Clique_walk walk_;
  Local_graph local_;
  std::vector<Bit_word> found_;
  std::vector<Bit_word> sorted_;
  std::vector<std::uint32_t> places_;
};

/// Finds all maximal cliques of three nodes or more of an undirected graph.
///
/// A clique is found with that member that comes first in the order of Sort_Vtx_map; cliques stand
/// in that order of nodes, and those of one node in ascending lexicographic order. The matrix is a
/// view of `cliques`. Keeps the state report up to date and polls the stop flag, which ends the
/// search by an exception.
void Clique_find_ec(Clique_vector& cliques, Overlap_matrix& overlap_matrix,
                    const Vertex_map& vtx_map);

/// The same without the cliques of fewer than `least_size` nodes, where 3 leaves out none: the
/// greater it is, the less there is to be walked. Only what hangs together by so many links that
/// such a clique may be there, the core of the graph (S. B. Seidman, Social Networks 5, 1983), is
/// looked at.
void Clique_find_of_size_ec(Clique_vector& cliques, const Vertex_map& vtx_map,
                            std::uint32_t least_size);

/// The same with a limit on the processor time of each attempt on a node; see Search_queue. All
/// cliques that it yields are maximal; some are missing if `left_map` isn't empty at its end.
void Clique_find_part_time_ec(Clique_vector& cliques, Overlap_matrix& overlap_matrix,
                              const Vertex_map& vtx_map, Left_map& left_map,
                              const Time_limit& time_limit);

/// The limit in seconds.
inline void Clique_find_part_time_ec(Clique_vector& cliques, Overlap_matrix& overlap_matrix,
                                     const Vertex_map& vtx_map, Left_map& left_map,
                                     double time_limit) {
  Clique_find_part_time_ec(cliques, overlap_matrix, vtx_map, left_map,
                           Time_limit{.seconds = time_limit});
}

}  // namespace gns
