#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

#include "graph/Name_numbers.h"
#include "graph/Name_queue.h"
#include "graph/Name_table.h"
#include "graph/Node_set.h"

namespace gns {

/// The links as read: (first name, second name) -> weight, unique, ascending bytewise by first
/// name, then second.
///
/// Names are stored once, in ascending order, so a pair of name numbers orders as the names do.
class Link_map {
 public:
  [[nodiscard]] std::size_t size() const { return pairs_.size(); }
  [[nodiscard]] bool empty() const { return pairs_.empty(); }
  [[nodiscard]] std::string_view First(std::size_t link) const {
    return names_[pairs_[link].first];
  }
  [[nodiscard]] std::string_view Second(std::size_t link) const {
    return names_[pairs_[link].second];
  }
  [[nodiscard]] double Weight(std::size_t link) const {
    return weights_.empty() ? 0.0 : weights_[link];
  }
  [[nodiscard]] bool Has_weights() const { return !weights_.empty(); }

  /// Name numbers of every link, in order.
  [[nodiscard]] const std::vector<Index_pair>& Pairs() const { return pairs_; }
  [[nodiscard]] const Name_table& Names() const { return names_; }

  void clear() { *this = Link_map(); }

  /// From names in ascending order and pairs of their numbers, in any order; `weights` is parallel
  /// to them, or empty: all 0.0. The weights of a repeated pair add up in their order. Polls as a
  /// long stage does.
  static Link_map From_numbers(Name_table names, std::vector<Index_pair> pairs,
                               std::vector<double> weights);

 private:
  Name_table names_;
  std::vector<Index_pair> pairs_;
  std::vector<double> weights_;  ///< parallel to pairs_, or empty: all 0.0
};

/// Collects links in any order and sorts them into a Link_map.
class Link_map_builder {
 public:
  /// With `weighted`, the weights of a repeated link add up in the order of adding; without, every
  /// weight is 0.0.
  explicit Link_map_builder(bool weighted) : weighted_(weighted) {}

  void Add(std::string_view first, std::string_view second, double weight = 0.0);

  /// Sorts and folds what was added; the builder is spent.
  Link_map Build();

 private:
  void Number_waiting_names();

  bool weighted_;
  Name_numbers names_;
  Name_queue waiting_;  ///< first and second names of the last links added
  std::vector<Index_pair> pairs_;
  std::vector<double> weights_;
};

}  // namespace gns
