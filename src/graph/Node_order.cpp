#include "graph/Node_order.h"

#include <algorithm>
#include <numeric>

#include "control/Run_control.h"
#include "foundation/Errors.h"

namespace gns {

namespace {

/// Stable counting sort of the nodes 1..n by the size of their rows.
template <typename Row_of>
Node_order Order_by_row_size(Node_index node_count, Row_of row_of) {
  std::vector<Node_index> place(std::size_t{node_count} + 2, 0);
  for (Node_index node = 1; node <= node_count; ++node) ++place[row_of(node).size() + 1];
  std::partial_sum(place.begin(), place.end(), place.begin());
  Node_order order(node_count);
  for (Node_index node = 1; node <= node_count; ++node) {
    external_control::Check_inside_long_stage();
    order[place[row_of(node).size()]++] = node;
  }
  return order;
}

}  // namespace

Node_order Order_of(const Named_graph& graph) {
  const Adjacency& neighs = graph.Neighs();
  return Order_by_row_size(neighs.Node_count(), [&](Node_index v) { return neighs[v]; });
}

void Sort_Vtx_map(Node_order& order, const Vertex_map& vtx_map) {
  order = Order_by_row_size(vtx_map.size(), [&](Node_index v) { return vtx_map.Neighs(v); });
}

void Sort_dir_vtx_map(Node_order& order, const Dir_vertex_map& dir_vtx_map,
                      const std::string& flag) {
  using Reader = Node_span (Dir_vertex_map::*)(Node_index) const;
  Reader row = nullptr;
  if (flag == "Neighs") row = &Dir_vertex_map::Neighs;
  if (flag == "Ineighs") row = &Dir_vertex_map::Ineighs;
  if (flag == "Oneighs") row = &Dir_vertex_map::Oneighs;
  if (row == nullptr) throw Xerror_msg(" Invalid flag '" + flag + "' given in Sort_vtxd_gmap...\n");
  order =
      Order_by_row_size(dir_vtx_map.size(), [&](Node_index v) { return (dir_vtx_map.*row)(v); });
}

}  // namespace gns
