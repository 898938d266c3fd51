#include "search/Overlap_matrix.h"

#include <algorithm>

namespace gns {

std::vector<Overlap_matrix::Entry> Overlap_matrix::Row(Clique_index i) {
  if (!cliques_of_) cliques_of_ = Holders_of_nodes(*cliques_);
  std::vector<Clique_index> met;
  for (const Node_index node : (*cliques_)[i]) {
    const auto others = (*cliques_of_)[node];
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
