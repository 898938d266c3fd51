#include "percolation/Prefix_lists.h"

#include <algorithm>
#include <utility>

#include "control/Polled_resize.h"
#include "control/Run_control.h"

namespace gns {

template <typename Rank>
Prefix_lists<Rank>::Prefix_lists(const Clique_ranks<Rank>& cliques, std::uint32_t node_count,
                                 bool nested)
    : cliques_(cliques),
      nested_(nested),
      positions_(node_count),
      lists_(node_count),
      unclaimed_(node_count) {
  for (std::uint32_t rank = 0; rank < node_count; ++rank)
    positions_[rank] = Tail::Position_of(node_count - 1 - rank);  // frequent ones apart
  Sort_by_size();
}

template <typename Rank>
void Prefix_lists<Rank>::Sort_by_size() {
  std::vector<std::size_t> places;  // per size: where its cliques begin
  for (std::size_t clique = 0; clique < cliques_.size(); ++clique) {
    const std::size_t size = cliques_[clique].size();
    if (size >= places.size()) places.resize(size + 1, 0);
    ++places[size];
  }
  std::size_t place = 0;
  for (std::size_t size = places.size(); size > 0; --size)
    place += std::exchange(places[size - 1], place);
  by_size_.resize(cliques_.size());
  for (Clique_index clique = 0; clique < cliques_.size(); ++clique)
    by_size_[places[cliques_[clique].size()]++] = clique;
}

template <typename Rank>
std::uint32_t Prefix_lists<Rank>::Largest() const {
  return by_size_.empty() ? 0 : static_cast<std::uint32_t>(cliques_[by_size_.front()].size());
}

/// Gives each list its place.
template <typename Rank>
void Prefix_lists<Rank>::Lay_out() {
  std::vector<std::uint32_t>& lengths = unclaimed_;
  std::ranges::fill(lengths, 0U);
  for (const Clique_index clique : by_size_) {
    external_control::Check_inside_long_stage();
    const auto row = cliques_[clique];
    for (const Rank rank : row.first(Reach(row.size(), least_overlap_))) ++lengths[rank];
  }
  std::size_t start = 0;
  for (std::size_t rank = 0; rank < lists_.size(); ++rank) {
    lists_[rank].start = start;
    start += lengths[rank];
  }
  tails_ = {};  // gives its memory back before more is taken
  list_cliques_ = {};
  external_control::Assign_zeros(tails_, start);
  external_control::Assign_zeros(list_cliques_, start);
  overlap_ = 0;
}

/// The first overlap may be the only one; from the second on there will be others.
template <typename Rank>
void Prefix_lists<Rank>::Reset(std::uint32_t overlap) {
  if (overlap < least_overlap_) {
    constexpr std::uint32_t usual_least = 2;
    const bool is_first = least_overlap_ == ~std::uint32_t{0};
    least_overlap_ = is_first ? overlap : std::min(overlap, usual_least);
    Lay_out();
  }
  if (overlap_ == 0 || overlap > overlap_) {
    for (List& list : lists_) list.filled = 0;
    overlap_ = std::max(Largest(), overlap) + 1;
  }
  while (overlap_ > overlap) Enter_next_level();
  for (std::size_t rank = 0; rank < lists_.size(); ++rank)
    lists_[rank].length = unclaimed_[rank] = lists_[rank].filled;
}

template <typename Rank>
typename Prefix_lists<Rank>::Tail Prefix_lists<Rank>::Tail_of(Row nodes) const {
  Tail tail;
  for (auto node = nodes.rbegin(); node != nodes.rend(); ++node) Add_in_front(*node, tail);
  return tail;
}

/// Lets the overlap fall by one and enters the cliques at the nodes that come into their reach.
template <typename Rank>
void Prefix_lists<Rank>::Enter_next_level() {
  const std::uint32_t before = overlap_--;
  for (const Clique_index clique : by_size_) {
    external_control::Check_inside_long_stage();
    const auto row = cliques_[clique];
    if (row.size() < overlap_) break;
    const std::size_t reach = Reach(row.size());
    for (std::size_t at = Reach(row.size(), before); at < reach; ++at) {
      List& list = lists_[row[at]];
      const std::size_t place = list.start + list.filled++;
      tails_[place] = Tail_of(row.subspan(at));
      list_cliques_[place] = clique;
    }
  }
}

template class Prefix_lists<std::uint16_t>;
template class Prefix_lists<std::uint32_t>;

}  // namespace gns
