#pragma once

#include <cstddef>
#include <string_view>

#include "graph/Link_map.h"

namespace gns {

/// Which links of an input are taken, and how.
struct Link_rule {
  bool weighted = false;  ///< each has a weight; without, no threshold counts
  bool use_lower_threshold = false;
  double lower_threshold = 0.0;
  bool use_upper_threshold = false;
  double upper_threshold = 0.0;
};

/// What a reader made of the links of an input.
struct Link_counts {
  std::size_t links = 0;       ///< lines that are links
  std::size_t self_links = 0;  ///< of these, links of a node with itself
  std::size_t outside = 0;     ///< of these, links whose weight is outside the thresholds
  double least_outside = 0.0;  ///< the weights of the latter
  double greatest_outside = 0.0;
};

/// True if the weight is strictly above the lower and strictly below the upper bound, as far as
/// set.
bool Link_in_interval(double weight, bool use_lower_threshold, double lower_threshold,
                      bool use_upper_threshold, double upper_threshold);

/// Takes the links that a reader finds, whatever their form was: those of a node with itself and
/// those outside the thresholds are counted and dropped.
class Link_intake {
 public:
  explicit Link_intake(const Link_rule& rule) : rule_(rule), builder_(rule.weighted) {}

  void Take(std::string_view first, std::string_view second, double weight) {
    ++counts_.links;
    if (first == second)
      ++counts_.self_links;
    else if (!rule_.weighted || Is_inside(weight))
      builder_.Add(first, second, weight);
    else
      Count_outside(weight);
  }

  [[nodiscard]] bool Is_weighted() const { return rule_.weighted; }
  [[nodiscard]] const Link_counts& Counts() const { return counts_; }

  /// What was taken; the intake is spent.
  Link_map Build() { return builder_.Build(); }

 private:
  [[nodiscard]] bool Is_inside(double weight) const;
  void Count_outside(double weight);

  Link_rule rule_;
  Link_map_builder builder_;
  Link_counts counts_;
};

}  // namespace gns
