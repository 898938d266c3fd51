#include "search/Search_graph.h"

#include <algorithm>

namespace gns {

namespace {

void Set_bit(std::vector<Bit_word>& rows, const Local_graph& local, std::size_t row,
             std::size_t position) {
  rows[row * local.words + position / word_bits] |= Bit_of(position);
}

}  // namespace

Search_graph::Search_graph(const Adjacency& neighs, const Node_order& order)
    : neighs_(neighs), finished_(order.size() + 1, 0), row_of_(order.size() + 1, 0) {
  std::vector<std::uint32_t> rank(order.size() + 1);
  for (std::uint32_t i = 0; i < order.size(); ++i) rank[order[i]] = i;
  forward_ = Adjacency(neighs.Node_count(), [&](auto enter) {
    for (Node_index node = 1; node <= neighs.Node_count(); ++node)
      for (const Node_index neigh : neighs[node])
        if (rank[node] < rank[neigh]) enter(node, neigh);
  });
}

Search_graph::Search_graph(const Vertex_map& vtx_map, const Node_order& order)
    : Search_graph(vtx_map.Rows(), order) {}

Search_graph::Search_graph(const Dir_vertex_map& dir_vtx_map, const Node_order& order)
    : Search_graph(dir_vtx_map.Rows(), order) {
  directions_.reserve(forward_.size());
  for (Node_index node = 1; node <= dir_vtx_map.size(); ++node) {
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

bool Search_graph::Cut_out(Node_index node, Local_graph& local) {
  if (!Collect(node, local)) return false;
  std::uint32_t row = 0;
  for (const Node_index member : local.nodes) row_of_[member] = ++row;
  for (const Node_index excluded : excluded_) row_of_[excluded] = ++row;
  if (!Directed()) row_of_[node] = 0;
  const bool linked = Link_nodes(local);
  if (linked) Link_excluded(local);
  for (const Node_index neigh : neighs_[node]) row_of_[neigh] = 0;
  row_of_[node] = 0;
  return linked;
}

/// Fills in the nodes and empties the rows; false if there are less than two candidates.
bool Search_graph::Collect(Node_index node, Local_graph& local) {
  local.nodes.clear();
  excluded_.clear();
  for (const Node_index neigh : neighs_[node])
    (Is_finished(neigh) ? excluded_ : local.nodes).push_back(neigh);
  if (local.nodes.size() < 2) return false;

  const auto place = std::lower_bound(local.nodes.begin(), local.nodes.end(), node);
  local.home = static_cast<std::size_t>(place - local.nodes.begin());
  local.nodes.insert(place, node);
  local.words = (local.nodes.size() + word_bits - 1) / word_bits;
  local.excluded_count = excluded_.size();
  local.rows.assign(local.Row_count() * local.words, 0);
  if (Directed()) {
    local.out_rows.assign(local.rows.size(), 0);
    local.in_rows.assign(local.rows.size(), 0);
  }
  return true;
}

/// Enters the links that are kept with a node: to other nodes, and, where nodes finished out of
/// order, to excluded nodes.
bool Search_graph::Link_nodes(Local_graph& local) const {
  bool linked = false;
  for (std::size_t i = 0; i < local.nodes.size(); ++i) {
    if (!Directed() && i == local.home) continue;
    const Node_span neighs = forward_[local.nodes[i]];
    const std::size_t start = forward_.Start(local.nodes[i]);
    for (std::size_t k = 0; k < neighs.size(); ++k) {
      if (row_of_[neighs[k]] == 0) continue;
      const std::size_t j = row_of_[neighs[k]] - 1;
      const bool inside = j < local.nodes.size();
      Set_bit(local.rows, local, j, i);
      if (inside) Set_bit(local.rows, local, i, j);
      if (inside && i != local.home && j != local.home) linked = true;
      if (!Directed() || directions_[start + k] == Direction::both) continue;
      const bool out = directions_[start + k] == Direction::out;
      Set_bit(out ? local.in_rows : local.out_rows, local, j, i);
      if (inside) Set_bit(out ? local.out_rows : local.in_rows, local, i, j);
    }
  }
  return linked;
}

/// Enters the links that are kept with an excluded node.
void Search_graph::Link_excluded(Local_graph& local) const {
  std::size_t row = local.nodes.size();
  for (const Node_index excluded : excluded_) {
    const Node_span neighs = forward_[excluded];
    const std::size_t start = forward_.Start(excluded);
    for (std::size_t k = 0; k < neighs.size(); ++k) {
      const std::size_t j = std::size_t{row_of_[neighs[k]]} - 1;  // wraps for a node outside
      if (j >= local.nodes.size()) continue;
      Set_bit(local.rows, local, row, j);
      if (!Directed() || directions_[start + k] == Direction::both) continue;
      Set_bit(directions_[start + k] == Direction::out ? local.out_rows : local.in_rows, local, row,
              j);
    }
    ++row;
  }
}

}  // namespace gns
