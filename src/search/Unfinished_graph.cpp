#include "search/Unfinished_graph.h"

#include <algorithm>

namespace gns {

bool Unfinished_graph::Cut_out(Node_index node, Local_graph& local) {
  if (!Collect(node, local)) return false;
  std::uint32_t row = 0;
  for (const Node_index member : local.nodes) row_of_[member] = ++row;
  for (const Node_index excluded : excluded_) row_of_[excluded] = ++row;
  if (!graph_.Directed()) row_of_[node] = 0;
  const bool linked = graph_.Directed() ? Link<true>(local) : Link<false>(local);
  for (const Node_index neigh : graph_.Neighs(node)) row_of_[neigh] = 0;
  row_of_[node] = 0;
  return linked;
}

/// True if a finished neighbour is linked to all candidates, so that it could join whatever they
/// make. In a clique of n nodes that holds for all nodes behind the first, and one local graph is
/// built instead of n. A finished neighbour keeps its links to the candidates, unless nodes
/// finished out of order; then some covers go unseen, and the walk finds out. Sorted rows give up
/// at the first candidate that is missing, nearly always within a few steps.
bool Unfinished_graph::Is_covered(const Local_graph& local) const {
  return std::any_of(excluded_.begin(), excluded_.end(), [&](Node_index excluded) {
    const auto linked = graph_.Forward(excluded);
    return linked.size() >= local.nodes.size() &&
           std::includes(linked.begin(), linked.end(), local.nodes.begin(), local.nodes.end()) &&
           (!graph_.Directed() || Closes_no_cycle(excluded, local));
  });
}

/// True if the one-way links from a covering node to the others all leave it or all arrive: no
/// cycle can pass through it then, whatever the others make.
bool Unfinished_graph::Closes_no_cycle(Node_index covering, const Local_graph& local) const {
  bool leaves = false;
  bool arrives = false;
  auto member = local.nodes.begin();
  std::size_t link = graph_.First_link(covering);
  for (const Node_index neigh : graph_.Forward(covering)) {
    const Direction direction = graph_.Direction_of(link++);
    if (member == local.nodes.end() || neigh != *member) continue;
    ++member;
    leaves = leaves || direction == Direction::out;
    arrives = arrives || direction == Direction::in;
  }
  return !(leaves && arrives);
}

/// Fills in the nodes and empties the rows; false if there are less than two candidates, or if
/// nothing that they make is maximal.
bool Unfinished_graph::Collect(Node_index node, Local_graph& local) {
  local.nodes.clear();
  excluded_.clear();
  for (const Node_index neigh : graph_.Neighs(node))
    (Is_finished(neigh) ? excluded_ : local.nodes).push_back(neigh);
  if (local.nodes.size() < 2) return false;
  const auto place = std::lower_bound(local.nodes.begin(), local.nodes.end(), node);
  local.home = static_cast<std::size_t>(place - local.nodes.begin());
  local.nodes.insert(place, node);
  if (Is_covered(local)) return false;

  local.words = (local.nodes.size() + word_bits - 1) / word_bits;
  local.excluded_count = excluded_.size();
  local.rows.assign(local.Row_count() * local.words, 0);
  if (graph_.Directed()) {
    local.out_rows.assign(local.rows.size(), 0);
    local.in_rows.assign(local.rows.size(), 0);
  }
  return true;
}

/// Enters a link from a row to a position; `direction` is that of the link as seen from the row.
void Unfinished_graph::Enter(Local_graph& local, std::size_t row, std::size_t position,
                             Direction direction) {
  const std::size_t word = row * local.words + position / word_bits;
  local.rows[word] |= Bit_of(position);
  if (direction == Direction::out) local.out_rows[word] |= Bit_of(position);
  if (direction == Direction::in) local.in_rows[word] |= Bit_of(position);
}

/// Enters all links; false if no two candidates are linked.
template <bool directed>
bool Unfinished_graph::Link(Local_graph& local) const {
  const bool linked = Link_nodes<directed>(local);
  if (linked) Link_excluded<directed>(local);
  return linked;
}

/// Enters the links that are kept with a node: to other nodes, and, where nodes finished out of
/// order, to excluded nodes. True if two candidates are linked.
template <bool directed>
bool Unfinished_graph::Link_nodes(Local_graph& local) const {
  bool linked = false;
  for (std::size_t i = 0; i < local.nodes.size(); ++i) {
    if (i == local.home && !directed) continue;
    std::size_t link = graph_.First_link(local.nodes[i]);
    for (const Node_index neigh : graph_.Forward(local.nodes[i])) {
      const std::size_t here = link++;
      if (row_of_[neigh] == 0) continue;
      const std::size_t j = row_of_[neigh] - 1;
      const Direction direction = Direction_of<directed>(here);
      Enter(local, j, i, Reverse(direction));
      if (j >= local.nodes.size()) continue;
      Enter(local, i, j, direction);
      if (i != local.home && j != local.home) linked = true;
    }
  }
  return linked;
}

/// Enters the links that are kept with an excluded node.
template <bool directed>
void Unfinished_graph::Link_excluded(Local_graph& local) const {
  std::size_t row = local.nodes.size();
  for (const Node_index excluded : excluded_) {
    std::size_t link = graph_.First_link(excluded);
    for (const Node_index neigh : graph_.Forward(excluded)) {
      const std::size_t here = link++;
      const std::size_t j = std::size_t{row_of_[neigh]} - 1;  // wraps for a node outside
      if (j < local.nodes.size()) Enter(local, row, j, Direction_of<directed>(here));
    }
    ++row;
  }
}

}  // namespace gns
