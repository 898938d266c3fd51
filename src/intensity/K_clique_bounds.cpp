#include "intensity/K_clique_bounds.h"

#include <algorithm>
#include <functional>
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

void Local_links::clear() {
  starts_.assign(1, 0);
  nodes_.clear();
  logs_.clear();
}

void Local_links::Append(std::uint32_t node, double log) {
  nodes_.push_back(node);
  logs_.push_back(log);
}

Outlook K_clique_bounds::Judge(const Local_links& links, double sum, std::uint32_t missing,
                               bool matter, Candidates& candidates) {
  for (;;) {
    if (candidates.size() < missing) return Outlook::none_passes;
    Collect_pairs(links, candidates);
    if (Drop_loose(missing, candidates)) continue;
    if (!matter || sum + Lowest_completion(missing, candidates) > accept_above_)
      return Complete() ? Outlook::all_subsets_pass : Outlook::all_pass;
    Compute_gains(missing, candidates);
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

void K_clique_bounds::Collect_pairs(const Local_links& links, const Candidates& candidates) {
  position_of_.resize(links.size(), 0);
  starts_.assign(candidates.size() + 2, 0);
  pairs_.clear();
  for (std::uint32_t i = 0; i < candidates.size(); ++i) position_of_[candidates.nodes[i]] = i + 1;
  for (std::uint32_t i = 0; i < candidates.size(); ++i) {
    const Local_links::Row row = links[candidates.nodes[i]];
    for (std::size_t at = 0; at < row.nodes.size(); ++at) {
      const std::uint32_t position = position_of_[row.nodes[at]];
      if (position == 0) continue;
      pairs_.push_back({i, position - 1, row.logs[at]});
      ++starts_[i + 2];
      ++starts_[position + 1];
    }
  }
  for (const std::uint32_t node : candidates.nodes) position_of_[node] = 0;
  std::partial_sum(starts_.begin(), starts_.end(), starts_.begin());
  logs_.resize(2 * pairs_.size());
  // Filling moves each start on to the start of the next candidate.
  for (const Pair& pair : pairs_) {
    logs_[starts_[pair.first + 1]++] = pair.log;
    logs_[starts_[pair.second + 1]++] = pair.log;
  }
}

bool K_clique_bounds::Complete() const {
  const std::size_t count = starts_.size() - 2;
  return pairs_.size() == count * (count - 1) / 2;
}

/// Drops candidates with too few links to the others; true if there were any.
bool K_clique_bounds::Drop_loose(std::uint32_t missing, Candidates& candidates) {
  return Keep_if(candidates,
                 [&](std::size_t i) { return starts_[i + 1] - starts_[i] >= missing - 1; });
}

double K_clique_bounds::Lowest_completion(std::uint32_t missing, const Candidates& candidates) {
  scratch_ = candidates.sums;
  const double lowest_sums = Sum_of_first(scratch_, missing, std::less<>());
  return lowest_sums + Pair_count(missing) * *std::ranges::min_element(logs_);
}

void K_clique_bounds::Compute_gains(std::uint32_t missing, const Candidates& candidates) {
  gains_.clear();
  for (std::size_t i = 0; i < candidates.size(); ++i) {
    const std::span<double> links(logs_.data() + starts_[i], logs_.data() + starts_[i + 1]);
    gains_.push_back(candidates.sums[i] + 0.5 * Sum_of_first(links, missing - 1, std::greater<>()));
  }
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
