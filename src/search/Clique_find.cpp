#include "search/Clique_find.h"

#include "search/Core_cliques.h"
#include "search/Directed_search.h"
#include "search/Left_map.h"
#include "search/Queue_search.h"
#include "search/Undirected_search.h"

namespace gns {

void Find_cliques_ec(bool use_time_limit, bool directed, Clique_vector& cliques,
                     Overlap_matrix& overlap_matrix, const Dir_vertex_map& dir_vtx_map,
                     const Vertex_map& vtx_map, std::uint32_t& exact_clique_count,
                     double time_limit, bool& approximation_needed) {
  const Time_limit limit = {.seconds = time_limit};
  Find_cliques_ec(use_time_limit ? &limit : nullptr, directed, cliques, overlap_matrix, dir_vtx_map,
                  vtx_map, exact_clique_count, approximation_needed);
}

void Find_cliques_ec(const Time_limit* time_limit, bool directed, Clique_vector& cliques,
                     Overlap_matrix& overlap_matrix, const Dir_vertex_map& dir_vtx_map,
                     const Vertex_map& vtx_map, std::uint32_t& exact_clique_count,
                     bool& approximation_needed) {
  approximation_needed = false;
  Left_map left_map;
  if (time_limit == nullptr && directed)
    Clique_find_dir_ec(cliques, overlap_matrix, dir_vtx_map);
  else if (time_limit == nullptr)
    Clique_find_ec(cliques, overlap_matrix, vtx_map);
  else if (directed)
    Clique_find_dir_time_ec(cliques, overlap_matrix, dir_vtx_map, left_map, *time_limit);
  else
    Clique_find_part_time_ec(cliques, overlap_matrix, vtx_map, left_map, *time_limit);

  exact_clique_count = static_cast<std::uint32_t>(cliques.size());
  if (!left_map.empty()) {
    Clique_vector core;
    Appr_core_cliques_ec(left_map, cliques, core);
    Extend_clique_vec(cliques, exact_clique_count, core);
    Refuse_more_than(most_numbered_cliques, cliques);
    Extend_ovlp_matr_ec(overlap_matrix, cliques, exact_clique_count);
  }
  approximation_needed = exact_clique_count < cliques.size();
}

}  // namespace gns
