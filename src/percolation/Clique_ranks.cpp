#include "percolation/Clique_ranks.h"

#include <algorithm>

#include "control/Run_control.h"
#include "control/Workers.h"

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
    : cliques_(cliques), ranks_(cliques.Values().size()) {
  external_control::On_ranges(cliques.size(), [&](std::size_t first, std::size_t last) {
    for (std::size_t clique = first; clique < last; ++clique) {
      external_control::Check_inside_long_stage();
      const Node_span members = cliques[clique];
      Rank* const row = ranks_.data() + (members.data() - cliques.Values().data());
      for (std::size_t i = 0; i < members.size(); ++i)
        row[i] = static_cast<Rank>(nodes.rank_of[members[i]]);
      std::sort(row, row + members.size());
    }
  });
}

namespace {

using Any_ranks = decltype(Ranked_cliques::rows);

Any_ranks Ranks_of(const Clique_vector& cliques, const Node_ranks& nodes) {
  constexpr std::uint32_t most_of_16_bits = 65536;
  if (nodes.count <= most_of_16_bits)
    return Any_ranks(std::in_place_type<Clique_ranks<std::uint16_t>>, cliques, nodes);
  return Any_ranks(std::in_place_type<Clique_ranks<std::uint32_t>>, cliques, nodes);
}

}  // namespace

Ranked_cliques::Ranked_cliques(const Clique_vector& cliques, const Node_ranks& nodes)
    : node_count(nodes.count), rows(Ranks_of(cliques, nodes)) {}

template class Clique_ranks<std::uint16_t>;
template class Clique_ranks<std::uint32_t>;

}  // namespace gns
