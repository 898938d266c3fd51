#include "intensity/K_clique_bounds.h"

#include <algorithm>
#include <functional>
#include <limits>
#include <numeric>

namespace gns {

namespace {

double Pair_count(std::uint32_t nodes) { return 0.5 * nodes * (nodes - 1.0); }

/// Sum of the first `count` values in the order of `before`; reorders the values, so that the last
/// of them stands at position `count` - 1.
template <typename Before>
double Sum_of_first(std::span<double> values, std::size_t count, Before before) {
  std::nth_element(values.begin(), values.begin() + static_cast<std::ptrdiff_t>(count) - 1,
                   values.end(), before);
  return std::reduce(values.begin(), values.begin() + static_cast<std::ptrdiff_t>(count), 0.0);
}

}  // namespace

Outlook K_clique_bounds::Judge(const Ranked_links& links, double sum, std::uint32_t missing,
                               bool matter, Candidates& candidates) {
  for (;;) {
    if (candidates.size() < missing) return Outlook::none_passes;
    if (Drop_loose(links, missing, matter, candidates)) continue;
    if (!matter || sum + Lowest_completion(missing, candidates) > accept_above_)
      return complete_ ? Outlook::all_subsets_pass : Outlook::all_pass;
    switch (Cut_to_gains(sum, missing, candidates)) {
      case Cut::all:
        return Outlook::none_passes;
      case Cut::nothing:
        return Outlook::undecided;
      case Cut::some:
        break;
    }
  }
}

bool K_clique_bounds::Are_out_of_reach(double sum, std::uint32_t missing, Candidates& candidates) {
  gains_.resize(candidates.size());
  for (std::size_t i = 0; i < candidates.size(); ++i)
    gains_[i] = candidates.sums[i] + candidates.reach[i];
  return Cut_to_gains(sum, missing, candidates) == Cut::all || candidates.size() < missing;
}

/// Drops the candidates that pass with none of the best gains of the others.
K_clique_bounds::Cut K_clique_bounds::Cut_to_gains(double sum, std::uint32_t missing,
                                                   Candidates& candidates) {
  scratch_ = gains_;
  const double best = sum + Sum_of_first(scratch_, missing, std::greater<>());
  if (best < reject_below_) return Cut::all;
  const double weakest_of_best = scratch_[missing - 1];
  return Keep_if(
             candidates,
             [&](std::size_t i) { return !(best - weakest_of_best + gains_[i] < reject_below_); })
             ? Cut::some
             : Cut::nothing;
}

/// Drops candidates with too few links to the others; true if there were any. Otherwise the others
/// have been looked at.
bool K_clique_bounds::Drop_loose(const Ranked_links& links, std::uint32_t missing, bool matter,
                                 Candidates& candidates) {
  is_candidate_.resize(std::max(is_candidate_.size(), links.Node_count()), 0);
  for (const std::uint32_t node : candidates.nodes) is_candidate_[node] = 1;
  Look_at_links(links, missing, matter, candidates);
  for (const std::uint32_t node : candidates.nodes) is_candidate_[node] = 0;
  return Keep_if(candidates, [&](std::size_t i) { return link_counts_[i] + 1 >= missing; });
}

void K_clique_bounds::Look_at_links(const Ranked_links& links, std::uint32_t missing, bool matter,
                                    Candidates& candidates) {
  link_counts_.clear();
  gains_.clear();
  candidates.reach.clear();
  lowest_ = std::numeric_limits<double>::infinity();
  complete_ = true;
  bool loose = false;
  for (std::size_t i = 0; i < candidates.size(); ++i) {
    const Link_rows::Row row = links[candidates.nodes[i]];
    if (logs_.size() <= row.nodes.size()) logs_.resize(row.nodes.size() + 1);
    std::size_t count = 0;
    for (std::size_t at = 0; at < row.nodes.size(); ++at) {
      logs_[count] = row.logs[at];
      count += is_candidate_[row.nodes[at]];
    }
    link_counts_.push_back(count);
    complete_ = complete_ && count + 1 == candidates.size();
    loose = loose || count + 1 < missing;
    if (loose || !matter) {
      candidates.reach.clear();
      continue;
    }
    lowest_ = std::min(lowest_, logs_[count - 1]);
    const double all_but_last = std::reduce(logs_.begin(), logs_.begin() + (missing - 2), 0.0);
    candidates.reach.push_back(0.5 * all_but_last);
    gains_.push_back(candidates.sums[i] + 0.5 * (all_but_last + logs_[missing - 2]));
  }
}

double K_clique_bounds::Lowest_completion(std::uint32_t missing, const Candidates& candidates) {
  scratch_ = candidates.sums;
  const double lowest_sums = Sum_of_first(scratch_, missing, std::less<>());
  return lowest_sums + Pair_count(missing) * lowest_;
}

/// Keeps the candidates at positions with keep(position); true if any was dropped.
template <typename Keep>
bool K_clique_bounds::Keep_if(Candidates& candidates, Keep keep) {
  std::size_t kept = 0;
  for (std::size_t i = 0; i < candidates.size(); ++i) {
    if (!keep(i)) continue;
    candidates.nodes[kept] = candidates.nodes[i];
    if (!candidates.reach.empty()) candidates.reach[kept] = candidates.reach[i];
    candidates.sums[kept++] = candidates.sums[i];
  }
  const bool dropped = kept < candidates.size();
  candidates.nodes.resize(kept);
  candidates.sums.resize(kept);
  if (!candidates.reach.empty()) candidates.reach.resize(kept);
  return dropped;
}

}  // namespace gns
