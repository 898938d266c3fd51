#pragma once

#include <cmath>
#include <cstdint>
#include <limits>
#include <vector>

#include "foundation/Errors.h"
#include "graph/Index_links.h"
#include "graph/Node_set.h"

namespace gns {

/// For a set of nodes that lacks a link.
inline Xerror_msg Missing_link() {
  return Xerror_msg("ERROR: Get_sub_links_and_thresh_abs: missing link.\n");
}

/// The natural logarithm of each link's weight, computed once for a run: minus infinity for weight
/// 0, not a number for a negative weight.
class Link_logs {
 public:
  /// `index_links` must outlive the object and have the smaller index first in every key.
  explicit Link_logs(const Index_links& index_links);

  /// The logarithm of a link, smaller node first. Throws Xerror_msg if there is no such link.
  [[nodiscard]] double At(Node_index first, Node_index second) const {
    if (first > index_links_.Node_count()) throw Missing_link();
    const std::size_t start = index_links_.Start(first);
    const Node_span row = index_links_.Row(first);
    for (std::size_t slot = Slot_of(first, second);; slot = (slot + 1) & (table_.size() - 1)) {
      if (table_[slot] == none) throw Missing_link();
      const std::size_t in_row = table_[slot] - start;
      if (in_row < row.size() && row[in_row] == second) return logs_[table_[slot]];
    }
  }
  [[nodiscard]] double At_place(std::size_t place) const { return logs_[place]; }
  [[nodiscard]] const Index_links& Links() const { return index_links_; }
  /// The lowest of all that are numbers, or infinity.
  [[nodiscard]] double Lowest() const { return lowest_; }

 private:
  static constexpr std::uint32_t none = ~std::uint32_t{0};

  [[nodiscard]] std::size_t Slot_of(Node_index first, Node_index second) const {
    const std::uint64_t both = (std::uint64_t{first} << 32U) | second;
    return static_cast<std::size_t>((both * 0x9e3779b97f4a7c15ULL) >> shift_);
  }
  void Fill_table();

  const Index_links& index_links_;
  std::vector<double> logs_;
  std::vector<std::uint32_t> table_;  ///< places; open addressing, the size is a power of two
  unsigned shift_ = 0;                ///< leaves as many bits as a slot has
  double lowest_ = std::numeric_limits<double>::infinity();
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

/// The logarithms of all links inside one node set, added up node by node in ascending order.
class Sub_links {
 public:
  /// Takes the links of `node_set`, two nodes or more. What stands before the first node that
  /// differs from the set taken before is kept, so sets in lexicographic order are cheap.
  void Load(Node_span node_set, const Link_logs& logs);

  [[nodiscard]] std::uint32_t size() const { return static_cast<std::uint32_t>(members_.size()); }
  /// The sum over the links among the first `nodes` nodes, 1 at least, in the order that decides on
  /// ties: for each node, from the second one on, the links to those in front of it, ascending.
  [[nodiscard]] double Sum(std::uint32_t nodes) const { return sums_[nodes - 1]; }
  /// The lowest logarithm, see Lowest_log.
  [[nodiscard]] double Lowest() const { return lowest_.back().Value(); }

 private:
  std::vector<Node_index> members_;
  std::vector<double> sums_;        ///< per node: up to it
  std::vector<Lowest_log> lowest_;  ///< the same
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

/// Decides on a set as it does between k-cliques. As soon as a sum passes with the lowest
/// logarithm of the set in place of all that are to come, the set passes.
bool Passes_in_order(const Sub_links& set, double log_threshold);

/// True if every set of `nodes` nodes is sure to pass so.
bool Every_set_passes(const Link_logs& logs, std::uint32_t nodes, double log_threshold);

}  // namespace gns
