#include "intensity/Sub_links.h"

#include <algorithm>

namespace gns {

Link_logs::Link_logs(const Index_links& index_links) : index_links_(index_links) {
  logs_.reserve(index_links.size());
  for (std::size_t place = 0; place < index_links.size(); ++place) {
    logs_.push_back(std::log(index_links.Weight_at(place)));
    if (logs_.back() < lowest_) lowest_ = logs_.back();
  }
}

/// Halves the row without a branch: which half it is, no processor can foresee.
std::size_t Link_logs::Place(Node_index first, Node_index second) const {
  if (first - 1 < index_links_.Node_count()) {
    const Node_span row = index_links_.Row(first);
    const Node_index* at = row.data();
    for (std::size_t count = row.size(); count > 1;) {
      const std::size_t half = count / 2;
      at += half * static_cast<std::size_t>(at[half - 1] < second);
      count -= half;
    }
    if (!row.empty() && *at == second)
      return index_links_.Start(first) + static_cast<std::size_t>(at - row.data());
  }
  throw Missing_link();
}

void Sub_links::Load(Node_span node_set, const Link_logs& logs) {
  const auto differing = std::ranges::mismatch(members_, node_set).in1;
  auto n = static_cast<std::size_t>(differing - members_.begin());
  members_.assign(node_set.begin(), node_set.end());
  sums_.resize(members_.size());
  lowest_.resize(members_.size());
  for (; n < members_.size(); ++n) {
    double sum = n == 0 ? 0.0 : sums_[n - 1];
    Lowest_log lowest = n == 0 ? Lowest_log() : lowest_[n - 1];
    for (std::size_t p = 0; p < n; ++p) {
      const double log = logs.At(members_[p], members_[n]);
      sum += log;
      lowest.Offer(log);
    }
    sums_[n] = sum;
    lowest_[n] = lowest;
  }
}

void Get_sub_links_and_min_link_w(Node_span node_set, const Link_logs& logs, Sub_links& sub_links,
                                  double& min_log_w) {
  sub_links.Load(node_set, logs);
  min_log_w = sub_links.Lowest();
}

namespace {

double Link_count(double nodes) { return (nodes - 1.0) * (0.5 * nodes); }

}  // namespace

bool Passes_in_order(const Sub_links& set, double log_threshold) {
  const double links = Link_count(set.size());
  for (std::uint32_t done = 1; done < set.size(); ++done) {
    const double missing = links - (done * 0.5) * (done - 1.0);
    if (!(log_threshold >= missing * set.Lowest() + set.Sum(done))) return true;
  }
  return set.Sum(set.size()) > log_threshold;
}

/// The first step above passes with any lowest logarithm that a set can have.
bool Every_set_passes(const Link_logs& logs, std::uint32_t nodes, double log_threshold) {
  return Link_count(nodes) * logs.Lowest() > log_threshold;
}

}  // namespace gns
