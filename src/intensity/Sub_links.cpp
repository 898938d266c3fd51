#include "intensity/Sub_links.h"

#include <algorithm>
#include <optional>

#include "foundation/Errors.h"

namespace gns {

Link_logs::Link_logs(const Index_links& index_links) : index_links_(index_links) {
  logs_.reserve(index_links.size());
  for (std::size_t place = 0; place < index_links.size(); ++place)
    logs_.push_back(std::log(index_links.Weight_at(place)));
}

std::size_t Link_logs::Place(Node_index first, Node_index second) const {
  const std::optional<std::size_t> place = index_links_.Place(first, second);
  if (!place) throw Xerror_msg("ERROR: Get_sub_links_and_thresh_abs: missing link.\n");
  return *place;
}

void Sub_links::Load(Node_span node_set, const Link_logs& logs) {
  const auto differing = std::ranges::mismatch(members_, node_set).in1;
  auto n = static_cast<std::size_t>(differing - members_.begin());
  members_.assign(node_set.begin(), node_set.end());
  logs_.resize(members_.size() * (members_.size() - 1) / 2);
  for (; n < members_.size(); ++n) {
    double* to_earlier = logs_.data() + n * (n - 1) / 2;
    for (std::size_t p = 0; p < n; ++p) to_earlier[p] = logs.At(members_[p], members_[n]);
  }
}

double Sub_links::Lowest(std::uint32_t left_out) const {
  Lowest_log lowest;
  for (std::uint32_t n = 1; n < size(); ++n) {
    if (n == left_out) continue;
    for (std::uint32_t p = 0; p < n; ++p)
      if (p != left_out) lowest.Offer(To_earlier(n)[p]);
  }
  return lowest.Value();
}

void Get_sub_links_and_min_link_w(Node_span node_set, const Link_logs& logs, Sub_links& sub_links,
                                  double& min_log_w) {
  sub_links.Load(node_set, logs);
  min_log_w = sub_links.Lowest(sub_links.size());
}

}  // namespace gns
