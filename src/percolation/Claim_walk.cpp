#include "percolation/Claim_walk.h"

#include <algorithm>
#include <utility>

#include "control/Run_control.h"

namespace gns {

Claim_walk::Claim_walk(const Clique_vector& cliques, std::uint32_t exact_clique_count, bool nested)
    : cliques_(&cliques), exact_clique_count_(exact_clique_count), nested_(nested) {
  for (std::size_t i = 0; i < cliques.size(); ++i) largest_ = std::max(largest_, cliques[i].size());
}

Claim_walk Claim_walk::Fellow() const {
  Claim_walk fellow(*cliques_, exact_clique_count_, nested_);
  fellow.ranked_ = ranked_;
  fellow.last_k_ = last_k_;
  return fellow;
}

void Claim_walk::Prepare() {
  if (!ranked_) ranked_ = std::make_shared<const Ranked_cliques>(*cliques_);
}

void Claim_walk::Make_lists() {
  Prepare();
  std::visit([&](const auto& ranks) { Lists_over(ranks); }, ranked_->rows);
}

std::uint64_t Claim_walk::Bytes_of_fellow() const {
  constexpr std::uint64_t entry = sizeof(std::uint64_t) + sizeof(Clique_index);
  constexpr std::uint64_t per_clique = 4 * sizeof(Clique_index);
  return cliques_->Values().size() * entry + cliques_->size() * per_clique;
}

/// Tells that one more clique was asked for: some at a time, as all workers tell in one place.
void Claim_walk::Tell_work() {
  constexpr std::uint32_t together = 64;
  if (++untold_work_ == together)
    external_control::This_control().work_done.Add(std::exchange(untold_work_, 0));
}

const Claimed_cliques& Claim_walk::At(std::uint32_t k) {
  claimed_.cliques.clear();
  claimed_.groups.clear();
  if (k == 0 || k > largest_) return claimed_;
  Prepare();
  std::visit([&](const auto& ranks) { Claim_all(k, Lists_over(ranks)); }, ranked_->rows);
  return claimed_;
}

template <typename Rank>
Claim_walk::Unclaimed<Rank>& Claim_walk::Lists_over(const Clique_ranks<Rank>& ranks) {
  if (std::holds_alternative<std::monostate>(unclaimed_)) {
    claimed_.cliques.reserve(cliques_->size());
    auto& lists = unclaimed_.emplace<Unclaimed<Rank>>(ranks, ranked_->node_count, nested_);
    if (last_k_ != 0) lists.Make_lists(Overlap_at(last_k_));
  }
  return std::get<Unclaimed<Rank>>(unclaimed_);
}

/// Walks the cliques in order and opens a community at each that is unclaimed and big enough.
template <typename Rank>
void Claim_walk::Claim_all(std::uint32_t k, Unclaimed<Rank>& unclaimed) {
  unclaimed.Reset(Overlap_at(k));  // cliques that share nothing never join
  for (Clique_index clique = 0; clique < cliques_->size(); ++clique)
    if ((*cliques_)[clique].size() >= k && unclaimed.Is_unclaimed(clique))
      Claim_community(clique, unclaimed);
}

/// The depth-first walk: all unclaimed neighbours of a clique are claimed before the first of them
/// is expanded. Each set of neighbours is a range of what is claimed, so the walk's stack holds
/// ranges.
template <typename Rank>
void Claim_walk::Claim_community(Clique_index seed, Unclaimed<Rank>& unclaimed) {
  const std::size_t first = claimed_.cliques.size();
  std::vector<std::pair<std::size_t, std::size_t>> to_expand = {
      {first, Claim_neighbours(seed, unclaimed)}};
  if (claimed_.cliques.size() == first) return;
  while (!to_expand.empty()) {
    external_control::Check_inside_long_stage();
    auto& [next, end] = to_expand.back();
    if (next == end) {
      to_expand.pop_back();
      continue;
    }
    const Clique_index clique = claimed_.cliques[next++];
    if (next != end)
      unclaimed.Prefetch(claimed_.cliques[next], claimed_.cliques[std::min(next + 1, end - 1)]);
    Tell_work();
    const std::size_t start = claimed_.cliques.size();
    const std::size_t stop = Claim_neighbours(clique, unclaimed);
    if (start != stop) to_expand.emplace_back(start, stop);
  }
  const auto is_approximate = [this](Clique_index clique) { return clique >= exact_clique_count_; };
  claimed_.groups.push_back(
      {first, claimed_.cliques.size(),
       std::any_of(claimed_.cliques.begin() + static_cast<std::ptrdiff_t>(first),
                   claimed_.cliques.end(), is_approximate)});
}

/// Claims the unclaimed neighbours of a clique, ascending; the clique itself is among them if it is
/// unclaimed. Yields the new end of what is claimed.
template <typename Rank>
std::size_t Claim_walk::Claim_neighbours(Clique_index clique, Unclaimed<Rank>& unclaimed) {
  const std::size_t start = claimed_.cliques.size();
  unclaimed.Append_neighbours(clique, claimed_.cliques);
  for (std::size_t i = start; i < claimed_.cliques.size(); ++i)
    unclaimed.Claim(claimed_.cliques[i]);
  return claimed_.cliques.size();
}

}  // namespace gns
