#include "search/Overlap_matrix.h"

#include <algorithm>

namespace gns {

void Overlap_matrix::Make_index() {
  const Node_span members = cliques_->Values();
  const Node_index greatest = members.empty() ? 0 : *std::ranges::max_element(members);
  starts_.assign(std::size_t{greatest} + 2, 0);
  for (const Node_index node : members) ++starts_[std::size_t{node} + 1];
  for (std::size_t i = 1; i < starts_.size(); ++i) starts_[i] += starts_[i - 1];
  cliques_of_nodes_.resize(members.size());
  std::vector<std::size_t> place(starts_.begin(), starts_.end() - 1);
  for (std::size_t i = 0; i < cliques_->size(); ++i)
    for (const Node_index node : (*cliques_)[i])
      cliques_of_nodes_[place[node]++] = static_cast<Clique_index>(i);
}

std::span<const Clique_index> Overlap_matrix::Cliques_of(Node_index node) const {
  return {cliques_of_nodes_.data() + starts_[node], starts_[node + 1] - starts_[node]};
}

std::vector<Overlap_matrix::Entry> Overlap_matrix::Row(Clique_index i) {
  if (starts_.empty()) Make_index();
  std::vector<Clique_index> met;
  for (const Node_index node : (*cliques_)[i]) {
    const auto others = Cliques_of(node);
    met.insert(met.end(), others.begin(), others.end());
  }
  std::sort(met.begin(), met.end());
  std::vector<Entry> row;
  for (const Clique_index other : met) {
    if (row.empty() || row.back().first != other) row.emplace_back(other, 0);
    ++row.back().second;
  }
  return row;
}

}  // namespace gns
