#include "percolation/Prefix_lists.h"

#include <algorithm>

#include "control/Polled_resize.h"
#include "control/Run_control.h"
#include "percolation/Signature_positions.h"

namespace gns {

template <typename Rank>
Prefix_lists<Rank>::Prefix_lists(const Clique_ranks<Rank>& cliques, std::uint32_t node_count,
                                 bool nested)
    : cliques_(cliques),
      nested_(nested),
      positions_(Signature_positions(cliques, node_count, Tail::positions)),
      lists_(node_count),
      unclaimed_(node_count) {
  Note_largest();
}

template <typename Rank>
void Prefix_lists<Rank>::Note_largest() {
  largest_of_.resize((cliques_.size() + block - 1) / block, 0);
  for (std::size_t clique = 0; clique < cliques_.size(); ++clique) {
    std::size_t& largest = largest_of_[clique / block];
    largest = std::max(largest, cliques_[clique].size());
  }
  if (!largest_of_.empty()) largest_ = *std::ranges::max_element(largest_of_);
}

/// Calls use(clique, its row) for the cliques of so many nodes, ascending.
template <typename Rank>
template <typename Use>
void Prefix_lists<Rank>::For_each_of(std::size_t least_size, Use use) const {
  for (std::size_t start = 0; start < cliques_.size(); start += block) {
    external_control::Check_inside_long_stage();
    if (largest_of_[start / block] < least_size) continue;
    const std::size_t end = std::min(start + block, cliques_.size());
    for (std::size_t clique = start; clique < end; ++clique) {
      const Row row = cliques_[clique];
      if (row.size() >= least_size) use(static_cast<Clique_index>(clique), row);
    }
  }
}

/// Gives each list its place.
template <typename Rank>
void Prefix_lists<Rank>::Lay_out() {
  std::vector<std::uint32_t>& lengths = unclaimed_;
  std::ranges::fill(lengths, 0U);
  For_each_of(least_overlap_, [&](Clique_index, Row row) {
    for (const Rank rank : row.first(Reach(row.size(), least_overlap_))) ++lengths[rank];
  });
  std::size_t start = 0;
  for (std::size_t rank = 0; rank < lists_.size(); ++rank) {
    lists_[rank].start = start;
    start += lengths[rank];
  }
  tails_ = {};  // gives its memory back before more is taken
  list_cliques_ = {};
  external_control::Assign_zeros(tails_, start + readable_behind);
  external_control::Assign_zeros(list_cliques_, start);
}

/// Per clique the signature of the nodes at which it isn't listed.
template <typename Rank>
std::vector<typename Prefix_lists<Rank>::Tail> Prefix_lists<Rank>::Tails_beyond_reach() const {
  std::vector<Tail> tails(cliques_.size());
  For_each_of(least_overlap_, [&](Clique_index clique, Row row) {
    for (std::size_t at = row.size(), reach = Reach(at, least_overlap_); at > reach; --at)
      Add_in_front(row[at - 1], tails[clique]);
  });
  return tails;
}

/// Fills the lists from behind, as the overlap rises: cliques leave them at their last nodes first,
/// so that each signature comes from the one behind it.
template <typename Rank>
void Prefix_lists<Rank>::Fill() {
  std::vector<Tail> tails = Tails_beyond_reach();
  std::vector<std::uint32_t>& left = unclaimed_;
  for (std::uint32_t overlap = least_overlap_; overlap <= largest_; ++overlap) {
    For_each_of(overlap, [&](Clique_index clique, Row row) {
      const std::size_t stays = Reach(row.size(), overlap + 1);
      for (std::size_t at = Reach(row.size(), overlap); at > stays; --at) {
        const Rank node = row[at - 1];
        Add_in_front(node, tails[clique]);
        const std::size_t place = lists_[node].start + --left[node];
        tails_[place] = tails[clique];
        list_cliques_[place] = clique;
      }
    });
  }
}

template <typename Rank>
void Prefix_lists<Rank>::Make(std::uint32_t least_overlap) {
  least_overlap_ = least_overlap;
  Lay_out();
  Fill();
  for (List& list : lists_) list.listed = 0;
  overlap_ = std::max(static_cast<std::uint32_t>(largest_), least_overlap) + 1;
}

/// The first overlap may be the only one; from the second on there will be others. Where claimed
/// cliques have been moved, only a smaller overlap finds the first entries in their place.
template <typename Rank>
void Prefix_lists<Rank>::Reset(std::uint32_t overlap) {
  if (overlap < least_overlap_ || overlap > overlap_) {
    constexpr std::uint32_t usual_least = 2;
    const bool is_first = overlap_ == 0;
    Make(is_first ? overlap : std::min({overlap, least_overlap_, usual_least}));
  }
  while (overlap_ > overlap) Lower_overlap();
  for (std::size_t rank = 0; rank < lists_.size(); ++rank)
    lists_[rank].length = unclaimed_[rank] = lists_[rank].listed;
}

/// Lets the overlap fall by one and counts the cliques at the nodes that come into their reach.
template <typename Rank>
void Prefix_lists<Rank>::Lower_overlap() {
  const std::uint32_t before = overlap_--;
  For_each_of(overlap_, [&](Clique_index, Row row) {
    const std::size_t reach = Reach(row.size());
    for (std::size_t at = Reach(row.size(), before); at < reach; ++at) ++lists_[row[at]].listed;
  });
}

template class Prefix_lists<std::uint16_t>;
template class Prefix_lists<std::uint32_t>;

}  // namespace gns
