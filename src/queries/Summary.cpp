#include "queries/Summary.h"

#include <limits>

namespace vorlane::queries {

namespace {

std::size_t Count(const Distribution& distribution, std::uint32_t from = 0) {
  std::size_t count = 0;
  for (const auto& [value, times] : distribution)
    if (value >= from) count += times;
  return count;
}

}  // namespace

double Level_summary::Dominance() const {
  if (communities == 0) return 0.0;
  if (second_largest == 0) return std::numeric_limits<double>::infinity();
  return static_cast<double>(largest) / static_cast<double>(second_largest);
}

Level_summary Summary_of(std::uint32_t k, const Statistics& statistics) {
  const Distributions& all = statistics.all;
  Level_summary summary;
  summary.k = k;
  summary.communities = Count(all.size);
  if (statistics.approximate) summary.approximate = Count(statistics.approximate->size);
  if (!all.size.empty()) {
    const auto largest = all.size.rbegin();
    summary.largest = largest->first;
    if (largest->second > 1)
      summary.second_largest = largest->first;
    else if (all.size.size() > 1)
      summary.second_largest = std::next(largest)->first;
  }
  summary.covered = Count(all.membership, 1);
  summary.overlapping = Count(all.membership, 2);
  summary.overlaps = Count(all.overlap);
  return summary;
}

Summary Summary_of(const Results& results) {
  Summary summary;
  summary.method = results.Method();
  summary.finished = results.Is_finished();
  for (const std::uint32_t k : results.Ks()) {
    const Statistics statistics = results.Statistics_at(k);
    summary.nodes = Count(statistics.all.membership);
    summary.levels.push_back(Summary_of(k, statistics));
  }
  return summary;
}

}  // namespace vorlane::queries
