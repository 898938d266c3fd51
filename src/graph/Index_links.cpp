#include "graph/Index_links.h"

#include <algorithm>
#include <utility>

namespace gns {

Index_links::Index_links(const std::vector<Index_pair>& keys, std::vector<double> weights,
                         Node_index node_count)
    : rows_(node_count,
            [&](auto enter) {
              for (const Index_pair& key : keys) enter(key.first, key.second);
            }),
      weights_(std::move(weights)) {}

bool Index_links::contains(Node_index first, Node_index second) const {
  if (first > Node_count()) return false;
  const Node_span row = Row(first);
  return std::binary_search(row.begin(), row.end(), second);
}

std::optional<double> Index_links::Weight(Node_index first, Node_index second) const {
  if (first > Node_count()) return std::nullopt;
  const Node_span row = Row(first);
  const auto place = std::lower_bound(row.begin(), row.end(), second);
  if (place == row.end() || *place != second) return std::nullopt;
  if (weights_.empty()) return 0.0;
  return weights_[rows_.Start(first) + static_cast<std::size_t>(place - row.begin())];
}

}  // namespace gns
