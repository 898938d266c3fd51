#include "search/Directed_search.h"

#include <memory>

#include "search/Whole_search.h"

namespace gns {

namespace {

const Search_kind kind = {
    .title = " Locating dir. cliques:",
    .timed_title = " Locating dir. cliques, max. allowed time/node=",
    .unit = "directed cliques",
    .closing_line = "no approximation was needed.",
};

Left_map Search(Clique_vector& cliques, Overlap_matrix& overlap_matrix,
                const Dir_vertex_map& dir_vtx_map, const Time_limit* limit) {
  Node_order order;
  Sort_dir_vtx_map(order, dir_vtx_map, "Neighs");
  const Search_graph graph(dir_vtx_map, order);
  const auto make = [&] { return std::make_unique<Directed_node_search>(graph); };
  return Search_all(make, {graph, order}, kind, limit, cliques, overlap_matrix);
}

}  // namespace

void Directed_node_search::Find(Node_index node, Attempt& attempt, Clique_vector& cliques) {
  if (!graph_.Cut_out(node, local_)) return;
  walk_.Find(local_, attempt, found_);
  Record_in_order(attempt, cliques);
}

/// Their order is found once, for all of them.
void Directed_node_search::Find_slice(Node_index node, const Walk_slice& slice,
                                      Clique_vector& cliques) {
  if (!graph_.Cut_out(node, local_)) return;
  Attempt without_limit;
  walk_.Find(local_, without_limit, found_, slice);
  local_.Record_all(cliques, found_);
}

void Directed_node_search::Join(Node_index node, std::span<const Clique_vector* const> slices,
                                Clique_vector& cliques) {
  if (!graph_.Cut_out(node, local_)) return;
  found_.clear();
  for (const Clique_vector* const slice : slices)
    for (std::size_t i = 0; i < slice->size(); ++i) {
      Attempt::Check_for_stop();
      local_.Append_row((*slice)[i], found_);
    }
  Attempt without_limit;
  Record_in_order(without_limit, cliques);
}

void Directed_node_search::Record_in_order(Attempt& attempt, Clique_vector& cliques) {
  for (const std::uint32_t place : order_.Sort(local_, attempt, found_)) {
    Attempt::Check_for_stop();
    local_.Record(cliques, found_.data() + place * local_.words);
  }
}

void Clique_find_dir_ec(Clique_vector& cliques, Overlap_matrix& overlap_matrix,
                        const Dir_vertex_map& dir_vtx_map) {
  Search(cliques, overlap_matrix, dir_vtx_map, nullptr);
}

void Clique_find_dir_time_ec(Clique_vector& cliques, Overlap_matrix& overlap_matrix,
                             const Dir_vertex_map& dir_vtx_map, Left_map& left_map,
                             const Time_limit& time_limit) {
  left_map = Search(cliques, overlap_matrix, dir_vtx_map, &time_limit);
}

}  // namespace gns
