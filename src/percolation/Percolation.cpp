#include "percolation/Percolation.h"

#include <algorithm>
#include <span>
#include <utility>

#include "control/Run_control.h"

namespace gns {

Percolation::Percolation(const Clique_vector& cliques, std::uint32_t exact_clique_count,
                         bool nested)
    : cliques_(cliques),
      exact_clique_count_(exact_clique_count),
      nested_(nested),
      contents_(cliques) {
  for (std::size_t i = 0; i < cliques.size(); ++i) largest_ = std::max(largest_, cliques[i].size());
}

std::shared_ptr<const Communities> Percolation::At(std::uint32_t k) {
  Claim_all(k);
  if (last_k_ <= k) {
    contents_.Forget_communities();
    Leave_communities();
    communities_ = std::make_shared<Communities>();
  }
  // Of those before, the cliques have been noted: only others may still want them.
  if (communities_.use_count() == 1) communities_->com_cliques.clear();
  auto result = std::make_shared<Communities>();
  result->com_cliques.Reserve(claimed_.size());
  Collect(false, *result);
  result->exact_com_count = static_cast<std::uint32_t>(result->size());
  Collect(true, *result);
  Leave_communities();
  communities_ = std::move(result);
  contents_.Note_communities(*communities_);
  last_k_ = k;
  return communities_;
}

void Percolation::Leave_communities() {
  if (gives_up_links_) communities_->com_links.clear();
}

void Percolation::Prepare() {
  constexpr std::uint32_t most_of_16_bits = 65536;
  claimed_.reserve(cliques_.size());
  const Node_ranks nodes(cliques_);
  if (nodes.count <= most_of_16_bits)
    unclaimed_.emplace<Unclaimed<std::uint16_t>>(cliques_, nodes, nested_);
  else
    unclaimed_.emplace<Unclaimed<std::uint32_t>>(cliques_, nodes, nested_);
}

void Percolation::Claim_all(std::uint32_t k) {
  claimed_.clear();
  found_.clear();
  if (k == 0 || k > largest_) return;
  if (std::holds_alternative<std::monostate>(unclaimed_)) Prepare();
  if (auto* const narrow = std::get_if<Unclaimed<std::uint16_t>>(&unclaimed_))
    Claim_all(k, *narrow);
  else
    Claim_all(k, std::get<Unclaimed<std::uint32_t>>(unclaimed_));
}

/// Walks the cliques in order and opens a community at each that is unclaimed and big enough.
template <typename Rank>
void Percolation::Claim_all(std::uint32_t k, Unclaimed<Rank>& unclaimed) {
  unclaimed.Reset(k == 1 ? 1 : k - 1);  // cliques that share nothing never join
  for (Clique_index clique = 0; clique < cliques_.size(); ++clique)
    if (cliques_[clique].size() >= k && unclaimed.Is_unclaimed(clique))
      Claim_community(clique, unclaimed);
}

/// The depth-first walk: all unclaimed neighbours of a clique are claimed before the first of them
/// is expanded. Each set of neighbours is a range of claimed_, so the walk's stack holds ranges.
template <typename Rank>
void Percolation::Claim_community(Clique_index seed, Unclaimed<Rank>& unclaimed) {
  const std::size_t first = claimed_.size();
  std::vector<std::pair<std::size_t, std::size_t>> to_expand = {
      {first, Claim_neighbours(seed, unclaimed)}};
  if (claimed_.size() == first) return;
  while (!to_expand.empty()) {
    external_control::Check_inside_long_stage();
    auto& [next, end] = to_expand.back();
    if (next == end) {
      to_expand.pop_back();
      continue;
    }
    const Clique_index clique = claimed_[next++];
    if (next != end) unclaimed.Prefetch(claimed_[next], claimed_[std::min(next + 1, end - 1)]);
    external_control::This_control().work_done.Add(1);
    const std::size_t start = claimed_.size();
    const std::size_t stop = Claim_neighbours(clique, unclaimed);
    if (start != stop) to_expand.emplace_back(start, stop);
  }
  const auto is_approximate = [this](Clique_index clique) { return clique >= exact_clique_count_; };
  found_.push_back({first, claimed_.size(),
                    std::any_of(claimed_.begin() + static_cast<std::ptrdiff_t>(first),
                                claimed_.end(), is_approximate)});
}

/// Claims the unclaimed neighbours of a clique, ascending; the clique itself is among them if it is
/// unclaimed. Yields the new end of claimed_.
template <typename Rank>
std::size_t Percolation::Claim_neighbours(Clique_index clique, Unclaimed<Rank>& unclaimed) {
  const std::size_t start = claimed_.size();
  unclaimed.Append_neighbours(clique, claimed_);
  for (std::size_t i = start; i < claimed_.size(); ++i) unclaimed.Claim(claimed_[i]);
  return claimed_.size();
}

void Percolation::Collect(bool approximate, Communities& result) {
  for (const Claimed_range& range : found_) {
    if (range.approximate != approximate) continue;
    external_control::Check_inside_long_stage();
    contents_.Append(std::span(claimed_).subspan(range.first, range.last - range.first),
                     *communities_, result);
  }
}

}  // namespace gns
