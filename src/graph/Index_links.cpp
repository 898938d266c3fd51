#include "graph/Index_links.h"

#include <algorithm>
#include <utility>

#include "control/Run_control.h"

namespace gns {

Index_links::Index_links(const std::vector<Index_pair>& keys, const std::vector<double>& weights,
                         Node_index node_count)
    : rows_(node_count, [&](auto enter) {
        for (const Index_pair& key : keys) {
          external_control::Check_inside_long_stage();
          enter(key.first, key.second);
        }
      }) {
  weights_.append(weights.data(), weights.size());
}

Index_links Index_links::Looking_at(Adjacency rows, std::span<const double> weights) {
  Index_links links;
  links.rows_ = std::move(rows);
  links.weights_ = Growing_array<double>::Looking_at(weights);
  return links;
}

std::optional<std::size_t> Index_links::Place(Node_index first, Node_index second) const {
  if (first - 1 >= Node_count()) return std::nullopt;
  const Node_span row = Row(first);
  const auto place = std::lower_bound(row.begin(), row.end(), second);
  if (place == row.end() || *place != second) return std::nullopt;
  return Start(first) + static_cast<std::size_t>(place - row.begin());
}

std::optional<double> Index_links::Weight(Node_index first, Node_index second) const {
  const std::optional<std::size_t> place = Place(first, second);
  if (!place) return std::nullopt;
  return Weight_at(*place);
}

}  // namespace gns
