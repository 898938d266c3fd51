#pragma once

#include <cmath>
#include <cstdint>
#include <vector>

#include "graph/Index_links.h"
#include "graph/Node_set.h"

namespace gns {

/// The natural logarithm of each link's weight, computed once for a run: minus infinity for weight
/// 0, not a number for a negative weight.
class Link_logs {
 public:
  /// `index_links` must outlive the object and have the smaller index first in every key.
  explicit Link_logs(const Index_links& index_links);

  /// The logarithm of a link, smaller node first. Throws Xerror_msg if there is no such link.
  [[nodiscard]] double At(Node_index first, Node_index second) const {
    return logs_[Place(first, second)];
  }
  /// Position of a link in the order of `index_links`. Throws Xerror_msg if there is none.
  [[nodiscard]] std::size_t Place(Node_index first, Node_index second) const;
  [[nodiscard]] double At_place(std::size_t place) const { return logs_[place]; }
  [[nodiscard]] const Index_links& Links() const { return index_links_; }

 private:
  const Index_links& index_links_;
  std::vector<double> logs_;
};

/// The lowest of the logarithms that are offered. One that is not a number is passed over, but if
/// it comes first, it stays.
class Lowest_log {
 public:
  void Offer(double log) {
    if (empty_ || value_ > log) value_ = log;
    empty_ = false;
  }
  [[nodiscard]] double Value() const { return value_; }

 private:
  double value_ = 0.0;
  bool empty_ = true;
};

/// The logarithms of all links inside one node set, by the positions of the nodes in it.
class Sub_links {
 public:
  /// Takes the links of `node_set`, two nodes or more. What stands before the first node that
  /// differs from the set taken before is kept, so sets in lexicographic order are cheap.
  void Load(Node_span node_set, const Link_logs& logs);

  [[nodiscard]] std::uint32_t size() const { return static_cast<std::uint32_t>(members_.size()); }
  /// The links from the node at position `n` to those in front of it, n of them.
  [[nodiscard]] const double* To_earlier(std::uint32_t n) const {
    return logs_.data() + std::size_t{n} * (n - 1) / 2;
  }
  /// The lowest logarithm, see Lowest_log, with the links of one position left out, if there is
  /// such a position.
  [[nodiscard]] double Lowest(std::uint32_t left_out) const;

 private:
  std::vector<Node_index> members_;
  std::vector<double> logs_;
};

/// Loads `sub_links` with the links of `node_set` and sets `min_log_w` to the lowest logarithm.
void Get_sub_links_and_min_link_w(Node_span node_set, const Link_logs& logs, Sub_links& sub_links,
                                  double& min_log_w);

/// The same from the links; their logarithms are taken for this one set.
inline void Get_sub_links_and_min_link_w(Node_span node_set, const Index_links& index_links,
                                         Sub_links& sub_links, double& min_log_w) {
  Get_sub_links_and_min_link_w(node_set, Link_logs(index_links), sub_links, min_log_w);
}

/// What the sum of logarithms of a set of `nodes` nodes has to exceed: first the power of the
/// threshold, then the logarithm, so it is infinite where the power leaves the range of doubles.
inline double Log_threshold(double intensity_threshold, std::uint32_t nodes) {
  const double links = (nodes - 1.0) * (0.5 * nodes);
  return std::log(std::pow(intensity_threshold, links));
}

}  // namespace gns
