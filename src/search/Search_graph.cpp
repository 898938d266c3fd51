#include "search/Search_graph.h"

#include "control/Run_control.h"

namespace gns {

Search_graph::Search_graph(const Adjacency& neighs, const Node_order& order) : neighs_(neighs) {
  std::vector<std::uint32_t> rank(order.size() + 1);
  for (std::uint32_t i = 0; i < order.size(); ++i) rank[order[i]] = i;
  forward_ = Adjacency::Chosen_of(neighs, neighs.size() / 2, [&](Node_index node) {
    external_control::Check_inside_long_stage();
    return [&rank, own = rank[node]](Node_index neigh) { return own < rank[neigh]; };
  });
}

Search_graph::Search_graph(const Dir_vertex_map& dir_vtx_map, const Node_order& order)
    : Search_graph(dir_vtx_map.Rows(), order) {
  directions_.reserve(forward_.size());
  for (Node_index node = 1; node <= dir_vtx_map.size(); ++node) {
    external_control::Check_inside_long_stage();
    auto out = dir_vtx_map.Oneighs(node).begin();
    auto in = dir_vtx_map.Ineighs(node).begin();
    const auto out_end = dir_vtx_map.Oneighs(node).end();
    const auto in_end = dir_vtx_map.Ineighs(node).end();
    for (const Node_index neigh : forward_[node]) {
      while (out != out_end && *out < neigh) ++out;
      while (in != in_end && *in < neigh) ++in;
      const bool leaves = out != out_end && *out == neigh;
      const bool arrives = in != in_end && *in == neigh;
      directions_.push_back(leaves && arrives ? Direction::both
                            : leaves          ? Direction::out
                                              : Direction::in);
    }
  }
}

Search_graph Search_graph_of(const Named_graph& graph, const Node_order& order) {
  if (graph.directed) return {graph.directed_vertices, order};
  return {graph.Neighs(), order};
}

}  // namespace gns
