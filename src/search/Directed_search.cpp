#include "search/Directed_search.h"

#include "search/Queue_search.h"

namespace gns {

namespace {

const Search_wording wording = {
    " Locating dir. cliques:", " Locating dir. cliques, max. allowed time/node=",
    "directed cliques", "no approximation was needed."};

}  // namespace

void Directed_node_search::Find(Node_index node, Attempt& attempt, Clique_vector& cliques) {
  if (!graph_.Cut_out(node, local_)) return;
  walk_.Find(local_, attempt, found_);
  for (const std::uint32_t place : order_.Sort(local_, attempt, found_))
    local_.Record(cliques, found_.data() + place * local_.words);
}

void Clique_find_dir_ec(Clique_vector& cliques, const Dir_vertex_map& dir_vtx_map) {
  Node_order order;
  Sort_dir_vtx_map(order, dir_vtx_map, "Neighs");
  Directed_node_search search(dir_vtx_map, order);
  Search_queue(search, order, wording, nullptr, true, cliques);
}

}  // namespace gns
