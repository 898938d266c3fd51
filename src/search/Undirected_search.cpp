#include "search/Undirected_search.h"

#include "search/Queue_search.h"

namespace gns {

namespace {

const Search_wording wording = {" Locating cliques:", " Locating cliques, max. allowed time/node=",
                                "cliques", " no approximation was needed"};

/// Adds the clique of `node` and the candidates in `row`, all in ascending order.
void Record(Clique_vector& cliques, Node_index node, const Local_graph& local,
            const Bit_word* row) {
  bool placed = false;
  For_each_bit(row, local.words, [&](std::size_t position) {
    const Node_index member = local.candidates[position];
    if (!placed && member > node) {
      cliques.Append(node);
      placed = true;
    }
    cliques.Append(member);
  });
  if (!placed) cliques.Append(node);
  cliques.Close_row();
}

std::vector<Node_index> Search(Clique_vector& cliques, Overlap_matrix& overlap_matrix,
                               const Vertex_map& vtx_map, const Time_limit* limit) {
  Node_order order;
  Sort_Vtx_map(order, vtx_map);
  Undirected_node_search search(vtx_map.Rows(), order);
  std::vector<Node_index> left = Search_queue(search, order, wording, limit, false, cliques);
  overlap_matrix = Overlap_matrix(cliques);
  return left;
}

}  // namespace

void Undirected_node_search::Find(Node_index node, Attempt& attempt, Clique_vector& cliques) {
  if (!graph_.Cut_out(node, local_)) return;
  walk_.Find(local_, attempt, found_);
  for (std::size_t at = 0; at < found_.size(); at += local_.words)
    Record(cliques, node, local_, found_.data() + at);
}

void Clique_find_ec(Clique_vector& cliques, Overlap_matrix& overlap_matrix,
                    const Vertex_map& vtx_map) {
  Search(cliques, overlap_matrix, vtx_map, nullptr);
}

void Clique_find_part_time_ec(Clique_vector& cliques, Overlap_matrix& overlap_matrix,
                              const Vertex_map& vtx_map, Left_map& left_map,
                              const Time_limit& time_limit) {
  left_map = Spanned_by(Search(cliques, overlap_matrix, vtx_map, &time_limit), vtx_map.Rows());
}

}  // namespace gns
