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
    scratch_ = gains_;
    const double best = sum + Sum_of_first(scratch_, missing, std::greater<>());
    if (best < reject_below_) return Outlook::none_passes;
    const double weakest_of_best = scratch_[missing - 1];
    if (!Keep_if(candidates, [&](std::size_t i) {
          return !(best - weakest_of_best + gains_[i] < reject_below_);
        }))
      return Outlook::undecided;
  }
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
                                    const Candidates& candidates) {
  link_counts_.clear();
  gains_.clear();
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
    if (loose || !matter) continue;
    lowest_ = std::min(lowest_, logs_[count - 1]);
    gains_.push_back(candidates.sums[i] +
                     0.5 * std::reduce(logs_.begin(), logs_.begin() + (missing - 1), 0.0));
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
    candidates.sums[kept++] = candidates.sums[i];
  }
  const bool dropped = kept < candidates.size();
  candidates.nodes.resize(kept);
  candidates.sums.resize(kept);
  return dropped;
}

}  // namespace gns
