#include "intensity/Ranked_links.h"

#include <algorithm>
#include <functional>
#include <numeric>

namespace gns {

void Local_links::clear() {
  starts_.assign(1, 0);
  nodes_.clear();
  logs_.clear();
}

void Ranked_links::Take(const Local_links& links) {
  are_ranked_ = false;
  const auto count = static_cast<std::uint32_t>(links.size());
  starts_.assign(count + std::size_t{2}, 0);
  for (std::uint32_t node = 0; node < count; ++node) {
    const Row row = links[node];
    starts_[node + 2] += row.nodes.size();
    for (const std::uint32_t other : row.nodes) ++starts_[other + 2];
  }
  std::partial_sum(starts_.begin(), starts_.end(), starts_.begin());
  nodes_.resize(starts_.back());
  logs_.resize(starts_.back());
  const auto enter = [&](std::uint32_t node, std::uint32_t other, double log) {
    const std::size_t place = starts_[node + 1]++;
    nodes_[place] = other;
    logs_[place] = log;
  };
  for (std::uint32_t node = 0; node < count; ++node) {
    const Row row = links[node];
    for (std::size_t i = 0; i < row.nodes.size(); ++i) {
      enter(node, row.nodes[i], row.logs[i]);
      enter(row.nodes[i], node, row.logs[i]);
    }
  }
  starts_.pop_back();
}

void Ranked_links::Rank(std::span<const std::uint32_t> nodes) {
  are_ranked_ = true;
  stays_.assign(size(), 0);
  for (const std::uint32_t node : nodes) stays_[node] = 1;
  std::size_t kept = 0;
  for (std::uint32_t node = 0; node < size(); ++node) {
    const Row row = (*this)[node];
    starts_[node] = kept;
    if (stays_[node] == 0) continue;
    row_.clear();
    for (std::size_t i = 0; i < row.nodes.size(); ++i)
      if (stays_[row.nodes[i]] != 0) row_.emplace_back(row.logs[i], row.nodes[i]);
    std::ranges::sort(row_, std::greater<>());
    for (const auto& [log, other] : row_) {
      logs_[kept] = log;
      nodes_[kept++] = other;
    }
  }
  starts_.back() = kept;
}

}  // namespace gns
