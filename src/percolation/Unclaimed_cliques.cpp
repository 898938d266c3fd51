#include "percolation/Unclaimed_cliques.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstring>

#include "foundation/Processor_level.h"

namespace gns {

template <typename Rank>
Unclaimed_cliques<Rank>::Unclaimed_cliques(const Clique_ranks<Rank>& ranks,
                                           std::uint32_t node_count, bool nested)
    : ranks_(ranks),
      lists_(ranks_, node_count, nested),
      claimed_(ranks.size() / word_bits + 1, 0),
      met_(ranks.size(), 0),
      asked_for_(node_count, 0),
      marked_(node_count, 0),
      to_sort_(ranks.size()) {
  candidates_.reserve(ranks.size());
}

template <typename Rank>
void Unclaimed_cliques<Rank>::Reset(std::uint32_t overlap) {
  overlap_ = overlap;
  lists_.Reset(overlap);
  std::ranges::fill(claimed_, 0U);
  std::ranges::fill(met_, 0U);
  std::ranges::fill(asked_for_, 0U);
  question_ = 1;
}

template <typename Rank>
void Unclaimed_cliques<Rank>::Append_neighbours(Clique_index clique,
                                                std::vector<Clique_index>& neighbours) {
  candidate_count_ = 0;
  const Row row = ranks_[clique];
  const Row to_read = Lists_to_read(row);
  if (to_read.empty()) return;
  Sign_tails(row);
  for (const Rank& node : to_read) {
    if (lists_.Unclaimed(node) == 0) continue;
    Meet(lists_.Read(node, [this](Clique_index met) { return Is_unclaimed(met); }),
         tails_[static_cast<std::size_t>(&node - row.data())].As_question());
  }
  if (candidate_count_ != 0) Append_checked(row, neighbours);
}

/// Begins a question and yields the nodes whose lists are to be read: of the reach, those up to the
/// last one that the clique asked for before hasn't, for that one has no unclaimed neighbour left.
template <typename Rank>
typename Unclaimed_cliques<Rank>::Row Unclaimed_cliques<Rank>::Lists_to_read(Row row) {
  std::size_t reach = lists_.Reach(row.size());
  std::size_t first = 0;
  while (first < reach && lists_.Unclaimed(row[first]) == 0) ++first;
  if (first == reach) return {};
  std::size_t last_new = row.size();
  while (last_new > 0 && asked_for_[row[last_new - 1]] == question_) --last_new;
  ++question_;
  for (const Rank rank : row) asked_for_[rank] = question_;
  reach = std::min(reach, last_new);
  return first < reach ? row.subspan(first, reach - first) : Row();
}

/// Adds the unclaimed cliques of a list to the candidates, as far as their signatures allow.
template <typename Rank>
void Unclaimed_cliques<Rank>::Meet(const Entries& entries, Tail question) {
  passed_.resize(std::max<std::size_t>(passed_.size(), entries.count));
  std::size_t passed = 0;
  Run_at_processor_level([&] { passed = Pass(entries, question, passed_.data()); });
  std::size_t count = candidate_count_;
  candidates_.resize(std::max(candidates_.size(), count + passed));
  for (std::size_t i = 0; i < passed; ++i) {
    const Clique_index met = passed_[i];
    candidates_[count] = met;
    count += met_[met] != question_ ? 1 : 0;
    met_[met] = question_;
    __builtin_prefetch(ranks_[met].data());
  }
  candidate_count_ = count;
}

/// Writes the unclaimed cliques of a list that their signatures let pass, and yields their number.
/// Whole blocks of signatures are looked at, whatever stands behind the list; and what is claimed
/// is overwritten, for no processor can foretell a branch on it.
template <typename Rank>
[[gnu::always_inline]] inline std::size_t Unclaimed_cliques<Rank>::Pass(
    const Entries& entries, Tail question, Clique_index* const passed) const {
  constexpr std::uint32_t word = sizeof(std::uint64_t);  // flags looked at together
  constexpr std::uint32_t block = Prefix_lists<Rank>::readable_behind + 1;
  const std::uint32_t bound = std::min(overlap_, Tail::bits);
  alignas(64) std::array<std::uint8_t, block> flags;
  std::size_t count = 0;
  for (std::uint32_t start = 0; start < entries.count; start += block) {
    const Tail* const __restrict tails = entries.tails + start;
    const Clique_index* const cliques = entries.cliques + start;
    for (std::uint32_t i = 0; i < block; ++i)
      flags[i] = tails[i].Shared_at_most(question) >= bound ? 1 : 0;
    const std::uint32_t left = std::min(block, entries.count - start);
    for (std::uint32_t at = 0; at < left; at += word) {
      std::uint64_t hits = 0;
      std::memcpy(&hits, flags.data() + at, word);
      if (left - at < word) hits &= (std::uint64_t{1} << (8 * (left - at))) - 1;
      for (; hits != 0; hits &= hits - 1) {
        const Clique_index met =
            cliques[at + static_cast<std::uint32_t>(std::countr_zero(hits)) / word];
        passed[count] = met;
        count += Is_unclaimed(met) ? 1 : 0;
        __builtin_prefetch(&met_[met]);
        ranks_.Prefetch_place(met);
      }
    }
  }
  return count;
}

/// Forms the signatures of the clique in question from each of its nodes on.
template <typename Rank>
void Unclaimed_cliques<Rank>::Sign_tails(Row row) {
  tails_.resize(row.size());
  Tail tail;
  for (std::size_t at = row.size(); at > 0; --at) {
    lists_.Add_in_front(row[at - 1], tail);
    tails_[at - 1] = tail;
  }
}

template <typename Rank>
void Unclaimed_cliques<Rank>::Append_checked(Row row, std::vector<Clique_index>& neighbours) {
  for (const Rank rank : row) marked_[rank] = 1;
  const std::size_t first = neighbours.size();
  for (const Clique_index candidate : std::span(candidates_).first(candidate_count_)) {
    std::uint32_t shared = 0;
    for (const Rank rank : ranks_[candidate]) shared += marked_[rank];
    if (shared >= overlap_) neighbours.push_back(candidate);
  }
  for (const Rank rank : row) marked_[rank] = 0;
  to_sort_.Sort(std::span(neighbours).subspan(first));
}

template class Unclaimed_cliques<std::uint16_t>;
template class Unclaimed_cliques<std::uint32_t>;

}  // namespace gns
