#pragma once

#include <cstddef>
#include <optional>
#include <span>
#include <vector>

#include "foundation/memory/Growing_array.h"
#include "graph/Adjacency.h"
#include "graph/Node_set.h"

namespace gns {

/// (index, index) -> weight, unique and ascending. In an undirected run the first index is the
/// smaller, in a directed run the key is (from, to).
class Index_links {
 public:
  Index_links() = default;
  /// From keys that ascend without repeats; `weights` is parallel to them, or empty: all 0.0.
  Index_links(const std::vector<Index_pair>& keys, const std::vector<double>& weights,
              Node_index node_count);
  /// Links that others hold, as All_rows() and Weights() tell them; these outlive it.
  static Index_links Looking_at(Adjacency rows, std::span<const double> weights);

  [[nodiscard]] std::size_t size() const { return rows_.size(); }
  [[nodiscard]] Node_index Node_count() const { return rows_.Node_count(); }
  /// Second indices of the keys that begin with `first`, ascending.
  [[nodiscard]] Node_span Row(Node_index first) const { return rows_[first]; }
  /// Those of all keys, and the weights under them; none: all 0.0.
  [[nodiscard]] const Adjacency& All_rows() const { return rows_; }
  [[nodiscard]] std::span<const double> Weights() const { return weights_.Values(); }
  /// Position among all keys of the first that begins with `first`.
  [[nodiscard]] std::size_t Start(Node_index first) const { return rows_.Start(first); }
  /// Position of a key among all keys, or nothing if it is missing.
  [[nodiscard]] std::optional<std::size_t> Place(Node_index first, Node_index second) const;
  [[nodiscard]] double Weight_at(std::size_t place) const {
    return weights_.size() == 0 ? 0.0 : weights_[place];
  }
  [[nodiscard]] bool contains(Node_index first, Node_index second) const {
    return Place(first, second).has_value();
  }
  /// The weight under a key, or nothing if the key is missing.
  [[nodiscard]] std::optional<double> Weight(Node_index first, Node_index second) const;

 private:
  Adjacency rows_;
  Growing_array<double> weights_;
};

}  // namespace gns
