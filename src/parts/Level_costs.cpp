#include "parts/Level_costs.h"

#include <algorithm>

#include "control/Run_control.h"

namespace gns::parts {

namespace {

/// Per node the size of the largest clique with it.
std::vector<std::uint32_t> Largest_of_nodes(const std::vector<const Clique_vector*>& blocks,
                                            Node_index node_count) {
  std::vector<std::uint32_t> largest_of(std::size_t{node_count} + 1, 0);
  for (const Clique_vector* const cliques : blocks)
    for (std::size_t i = 0; i < cliques->size(); ++i) {
      external_control::Check_inside_long_stage();
      const Node_span members = (*cliques)[i];
      for (const Node_index node : members)
        largest_of[node] = std::max(largest_of[node], static_cast<std::uint32_t>(members.size()));
    }
  return largest_of;
}

std::uint64_t At(const std::vector<std::uint64_t>& numbers, std::uint64_t place) {
  return place < numbers.size() ? numbers[place] : 0;
}

}  // namespace

Level_counts Count_for_levels(const std::vector<const Clique_vector*>& blocks,
                              const Index_links& links) {
  const std::vector<std::uint32_t> largest_of = Largest_of_nodes(blocks, links.Node_count());
  Level_counts counts;
  counts.cliques_of.resize(*std::ranges::max_element(largest_of) + std::size_t{1}, 0);
  counts.links_of.resize(counts.cliques_of.size(), 0);
  for (const Clique_vector* const cliques : blocks)
    for (std::size_t i = 0; i < cliques->size(); ++i) ++counts.cliques_of[(*cliques)[i].size()];
  for (Node_index node = 1; node <= links.Node_count(); ++node) {
    external_control::Check_inside_long_stage();
    for (const Node_index other : links.Row(node))
      ++counts.links_of[std::min(largest_of[node], largest_of[other])];
  }
  return counts;
}

/// The factors were fitted to what parts of seven networks took. A link is written at each k at
/// which it is in a community.
Level_costs::Level_costs(const Level_counts& counts)
    : members_from_(counts.cliques_of.size(), 0),
      listed_from_(members_from_),
      links_from_(members_from_),
      work_from_(members_from_) {
  constexpr std::uint64_t of_files = 1000;
  constexpr std::uint64_t most_lists = 2;  // for a clique of k nodes
  constexpr std::uint64_t written_at_once = 4;
  std::uint64_t cliques = 0;
  std::uint64_t links = 0;
  std::uint64_t members = 0;
  std::uint64_t listed = 0;
  std::uint64_t work = 0;
  for (std::size_t size = counts.cliques_of.size(); size-- > 0;) {
    const std::uint64_t of_size = counts.cliques_of[size];
    listed_from_[size] = listed += cliques + most_lists * of_size;
    members_from_[size] = members += of_size * size;
    cliques += of_size;
    links_from_[size] = links += counts.links_of[size];
    work_from_[size] = work += cliques + links / written_at_once + of_files;
  }
}

std::uint64_t Level_costs::Listed(std::uint64_t smallest_k) const {
  return At(listed_from_, smallest_k);
}

/// To begin with, all members of cliques are read and ranked, lists are filled, and the first
/// communities come from their cliques: all cliques, as a bound, so that a level more never makes
/// the others cheaper. Each link is merged into a community at its largest k.
std::uint64_t Level_costs::Of(std::uint64_t largest_k, std::uint64_t smallest_k) const {
  constexpr std::uint64_t ranked_at_once = 14;
  constexpr std::uint64_t listed_at_once = 20;
  constexpr std::uint64_t taken_apart_at_once = 18;
  const std::uint64_t begin = At(members_from_, 0) / ranked_at_once +
                              Listed(smallest_k) / listed_at_once +
                              At(members_from_, smallest_k) / taken_apart_at_once;
  const std::uint64_t merging = At(links_from_, smallest_k) * 3 / 4;
  return begin + merging + At(work_from_, smallest_k) - At(work_from_, largest_k + 1);
}

}  // namespace gns::parts
