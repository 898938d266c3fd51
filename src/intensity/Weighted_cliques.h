#pragma once

#include <cstdint>
#include <limits>
#include <span>
#include <vector>

#include "graph/Adjacency.h"
#include "graph/Index_links.h"
#include "intensity/Sub_links.h"
#include "search/Clique_vector.h"

namespace gns {

/// The cliques of an intensity run with the logarithms of their link weights. Made once, it serves
/// every k.
class Weighted_cliques {
 public:
  /// `cliques` must be all maximal cliques of three nodes or more of the undirected graph of
  /// `index_links`; both must outlive the object. Throws Xerror_msg if a clique lacks a link.
  Weighted_cliques(const Clique_vector& cliques, const Index_links& index_links);

  [[nodiscard]] const Clique_vector& Cliques() const { return cliques_; }
  [[nodiscard]] const Link_logs& Logs() const { return logs_; }
  [[nodiscard]] Node_index Node_count() const { return logs_.Links().Node_count(); }
  /// Size of the largest clique, 0 if there is none.
  [[nodiscard]] std::uint32_t Largest_clique() const { return largest_clique_; }
  /// The largest finite absolute value of a logarithm.
  [[nodiscard]] double Largest_log() const { return largest_log_; }
  /// Size of the largest clique that holds a node, 0 if there is none.
  [[nodiscard]] std::uint32_t Largest_clique_of(Node_index node) const {
    return largest_clique_of_[node];
  }

  /// Calls use(node, logarithm, size of the largest clique around the link) for each node behind
  /// `first` that a link inside a clique of k nodes or more leads to, ascending. Links of weight 0
  /// are left out: no set with one has an intensity above any threshold.
  template <typename Use>
  void For_each_link(Node_index first, std::uint32_t k, Use use) const {
    if (largest_clique_of_[first] < k) return;
    const Node_span row = logs_.Links().Row(first);
    const std::size_t start = logs_.Links().Start(first);
    for (std::size_t i = 0; i < row.size(); ++i) {
      const double log = logs_.At_place(start + i);
      if (clique_sizes_[start + i] >= k && log != -std::numeric_limits<double>::infinity())
        use(row[i], log, clique_sizes_[start + i]);
    }
  }

  struct Link_end {
    double log;  ///< infinite for a weight without a logarithm
    Node_index node;
    std::uint32_t clique_size;  ///< of the largest clique around the link
  };
  /// The nodes on the other side of the links of a node, the strongest first. Links outside cliques
  /// and links of weight 0 are left out.
  [[nodiscard]] std::span<const Link_end> Ranked_links(Node_index node) const {
    return {link_ends_.data() + first_end_[node], first_end_[node + 1] - first_end_[node]};
  }

  /// True if accepts(lowest logarithm in the clique) holds for some clique around `k_clique`.
  template <typename Accepts>
  [[nodiscard]] bool Any_clique_around(Node_span k_clique, Accepts accepts) const {
    for (const Clique_index clique : cliques_of_[k_clique.front()])
      if (accepts(lowest_logs_[clique]) && Lies_inside(k_clique, cliques_[clique])) return true;
    return false;
  }

 private:
  void Look_at_links_of_cliques();
  void Rank_links();

  const Clique_vector& cliques_;
  Link_logs logs_;
  std::vector<std::uint32_t> clique_sizes_;  ///< per link: size of the largest clique around it
  std::vector<std::uint32_t> largest_clique_of_;  ///< per node
  std::vector<double> lowest_logs_;               ///< per clique
  Adjacency cliques_of_;                          ///< per node: the cliques that hold it
  std::vector<std::size_t> first_end_;            ///< per node: position in link_ends_, and the end
  std::vector<Link_end> link_ends_;
  std::uint32_t largest_clique_ = 0;
  double largest_log_ = 0.0;
};

}  // namespace gns
