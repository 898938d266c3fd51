#include "search/Search_graph.h"

namespace gns {

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

bool Search_graph::Cut_out(Node_index node, Local_graph& local) {
  local.candidates.clear();
  excluded_.clear();
  for (const Node_index neigh : neighs_[node])
    (Is_finished(neigh) ? excluded_ : local.candidates).push_back(neigh);
  if (local.candidates.size() < 2) return false;

  local.words = (local.candidates.size() + word_bits - 1) / word_bits;
  local.excluded_count = excluded_.size();
  local.rows.assign(local.Row_count() * local.words, 0);
  std::uint32_t row = 0;
  for (const Node_index candidate : local.candidates) row_of_[candidate] = ++row;
  for (const Node_index excluded : excluded_) row_of_[excluded] = ++row;
  const bool linked = Link_candidates(local);
  if (linked) Link_excluded(local);
  for (const Node_index neigh : neighs_[node]) row_of_[neigh] = 0;
  return linked;
}

/// Enters the links that are kept with a candidate: to other candidates, and, where nodes finished
/// out of order, to excluded nodes.
bool Search_graph::Link_candidates(Local_graph& local) const {
  bool linked = false;
  for (std::size_t i = 0; i < local.candidates.size(); ++i) {
    for (const Node_index neigh : forward_[local.candidates[i]]) {
      if (row_of_[neigh] == 0) continue;
      const std::size_t j = row_of_[neigh] - 1;
      local.Row(j)[i / word_bits] |= Bit_of(i);
      if (j >= local.candidates.size()) continue;
      local.Row(i)[j / word_bits] |= Bit_of(j);
      linked = true;
    }
  }
  return linked;
}

/// Enters the links that are kept with an excluded node.
void Search_graph::Link_excluded(Local_graph& local) const {
  Bit_word* row = local.Row(local.candidates.size());
  for (const Node_index excluded : excluded_) {
    for (const Node_index neigh : forward_[excluded]) {
      const std::size_t j = std::size_t{row_of_[neigh]} - 1;  // wraps for a node outside
      if (j < local.candidates.size()) row[j / word_bits] |= Bit_of(j);
    }
    row += local.words;
  }
}

}  // namespace gns
