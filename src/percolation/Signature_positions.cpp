#include "percolation/Signature_positions.h"

#include <algorithm>
#include <utility>

#include "control/Run_control.h"
#include "graph/Row_index.h"

namespace gns {

namespace {

/// Calls use(clique) for cliques all over, an eighth at most, of as many members together as tell
/// enough in little time. Where many nodes share every position anyway, nothing can be told.
template <typename Rank, typename Use>
void For_each_of_sample(const Clique_ranks<Rank>& cliques, unsigned positions, Use use) {
  constexpr std::size_t most_members = std::size_t{1} << 18U;
  constexpr std::size_t least_step = 8;
  const std::size_t step = cliques.Members() / most_members + least_step;
  for (std::size_t clique = 0; clique < cliques.size(); clique += step)
    if (cliques[clique].size() <= std::size_t{4} * positions)
      use(static_cast<std::uint32_t>(clique));
}

/// Per node, counted from 1, the cliques of the sample that hold it.
template <typename Rank>
Row_index Sampled_holders(const Clique_ranks<Rank>& cliques, std::uint32_t node_count,
                          unsigned positions) {
  return {node_count, [&](auto enter) {
            For_each_of_sample(cliques, positions, [&](std::uint32_t clique) {
              for (const Rank node : cliques[clique]) enter(node + Node_index{1}, clique);
            });
          }};
}

}  // namespace

template <typename Rank>
std::vector<std::uint8_t> Signature_positions(const Clique_ranks<Rank>& cliques,
                                              std::uint32_t node_count, unsigned positions) {
  const Row_index holders = Sampled_holders(cliques, node_count, positions);
  std::vector<std::uint8_t> position_of(node_count);
  /// Per position: how often the node in question meets one that stands there, then how often those
  /// nodes are met at all.
  std::vector<std::pair<std::size_t, std::size_t>> costs(positions);
  for (std::uint32_t node = node_count; node-- > 0;) {
    external_control::Check_inside_long_stage();
    const Node_span cliques_of_node = holders[node + 1];
    if (cliques_of_node.empty()) {
      position_of[node] = static_cast<std::uint8_t>(node % positions);
      continue;
    }
    for (auto& [meetings, load] : costs) meetings = 0;
    for (const std::uint32_t clique : cliques_of_node) {
      const auto row = cliques[clique];
      for (auto member = row.rbegin(); *member > node; ++member)
        ++costs[position_of[*member]].first;
    }
    const auto best = std::ranges::min_element(costs);
    best->second += cliques_of_node.size();
    position_of[node] = static_cast<std::uint8_t>(best - costs.begin());
  }
  return position_of;
}

template std::vector<std::uint8_t> Signature_positions(const Clique_ranks<std::uint16_t>& cliques,
                                                       std::uint32_t node_count,
                                                       unsigned positions);
template std::vector<std::uint8_t> Signature_positions(const Clique_ranks<std::uint32_t>& cliques,
                                                       std::uint32_t node_count,
                                                       unsigned positions);

}  // namespace gns
