#include "percolation/Clique_ranks.h"

#include <algorithm>

#include "control/Run_control.h"

namespace gns {

Node_ranks::Node_ranks(const Clique_vector& cliques) {
  const Node_span members = cliques.Values();
  if (members.empty()) return;
  std::vector<std::uint32_t> frequency(*std::ranges::max_element(members) + std::size_t{1}, 0);
  for (const Node_index node : members) ++frequency[node];
  std::vector<Node_index> by_frequency;
  for (Node_index node = 0; node < frequency.size(); ++node)
    if (frequency[node] != 0) by_frequency.push_back(node);
  std::sort(by_frequency.begin(), by_frequency.end(),
            [&](Node_index a, Node_index b) { return frequency[a] < frequency[b]; });
  count = static_cast<std::uint32_t>(by_frequency.size());
  rank_of.swap(frequency);
  for (std::uint32_t rank = 0; rank < count; ++rank) rank_of[by_frequency[rank]] = rank;
}

template <typename Rank>
Clique_ranks<Rank>::Clique_ranks(const Clique_vector& cliques, const Node_ranks& nodes)
    : cliques_(cliques) {
  ranks_.reserve(cliques.Values().size());
  for (const Node_index node : cliques.Values())
    ranks_.push_back(static_cast<Rank>(nodes.rank_of[node]));
  auto first = ranks_.begin();
  for (std::size_t clique = 0; clique < cliques.size(); ++clique) {
    external_control::Check_inside_long_stage();
    const auto last = first + static_cast<std::ptrdiff_t>(cliques[clique].size());
    std::sort(first, last);
    first = last;
  }
}

template class Clique_ranks<std::uint16_t>;
template class Clique_ranks<std::uint32_t>;

}  // namespace gns
