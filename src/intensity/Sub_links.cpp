#include "intensity/Sub_links.h"

#include <algorithm>
#include <bit>

namespace gns {

Link_logs::Link_logs(const Index_links& index_links) : index_links_(index_links) {
  logs_.reserve(index_links.size());
  for (std::size_t place = 0; place < index_links.size(); ++place) {
    logs_.push_back(std::log(index_links.Weight_at(place)));
    if (logs_.back() < lowest_) lowest_ = logs_.back();
  }
  Fill_table();
}

/// At most half of the entries are taken.
void Link_logs::Fill_table() {
  const std::size_t slots = std::bit_ceil(2 * logs_.size() + 2);
  shift_ = 64U - static_cast<unsigned>(std::countr_zero(slots));
  table_.resize(slots, none);
  std::uint32_t place = 0;
  for (Node_index first = 1; first <= index_links_.Node_count(); ++first) {
    for (const Node_index second : index_links_.Row(first)) {
      std::size_t slot = Slot_of(first, second);
      while (table_[slot] != none) slot = (slot + 1) & (slots - 1);
      table_[slot] = place++;
    }
  }
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
