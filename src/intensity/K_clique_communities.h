#pragma once

#include <cstdint>

#include "control/Run_control.h"
#include "graph/Node_set.h"
#include "graph/Row_array.h"
#include "intensity/K_cliques.h"
#include "intensity/Sub_links.h"

namespace gns {

/// The communities of k-cliques: k-cliques that share k - 1 nodes are adjacent if the shared nodes
/// pass the intensity threshold as a set of their own, and a community is a connected group of
/// k-cliques (I. Farkas, D. Ábel, G. Palla, T. Vicsek, New Journal of Physics 9, 2007).
///
/// Sets `coms` to the members of each community, ascending, and `com_k_cliques` to its k-cliques,
/// ascending. The communities stand in the order of their first k-cliques. Reports and polls.
/// Throws Xerror_msg if a link inside a k-clique is missing.
void Intensity_coms_from_k_cliques_ec(const K_cliques& k_cliques, Row_array<Node_index>& coms,
                                      Row_array<K_clique_index>& com_k_cliques,
                                      const Link_logs& logs, double intensity_threshold);

/// The same from the links, with the links of each community as For_each() of K_clique_com_links
/// tells them. `k` is that of the k-cliques.
void Intensity_coms_from_k_cliques_ec(const K_cliques& k_cliques, Row_array<Node_index>& coms,
                                      Row_array<Index_pair>& com_links, std::uint32_t k,
                                      const Index_links& index_links, double intensity_threshold);

/// The links of the communities, computed when asked for: for each k-clique of a community in
/// order, all its pairs. So a link inside several k-cliques comes once for each.
class K_clique_com_links {
 public:
  /// Both must outlive the object.
  K_clique_com_links(const K_cliques& k_cliques, const Row_array<K_clique_index>& com_k_cliques)
      : k_cliques_(k_cliques), com_k_cliques_(com_k_cliques) {}

  [[nodiscard]] std::size_t size() const { return com_k_cliques_.size(); }

  /// Calls use(link) for each link of a community, smaller index first. Polls the stop flag as a
  /// long stage does.
  template <typename Use>
  void For_each(std::size_t com, Use use) const {
    for (const K_clique_index k_clique : com_k_cliques_[com]) {
      external_control::Check_inside_long_stage();
      const Node_span members = k_cliques_[k_clique];
      for (std::size_t a = 0; a < members.size(); ++a)
        for (std::size_t b = a + 1; b < members.size(); ++b)
          use(Index_pair{members[a], members[b]});
    }
  }

 private:
  const K_cliques& k_cliques_;
  const Row_array<K_clique_index>& com_k_cliques_;
};

namespace Coms_from_k_cls_sub {

/// True if the link weight intensity of a set of two nodes or more is strictly greater than the
/// threshold.
bool Check_intersection(Node_span node_set, const Link_logs& logs, double intensity_threshold);
/// The same from the links; their logarithms are taken for this one set.
inline bool Check_intersection(Node_span node_set, const Index_links& index_links,
                               double intensity_threshold) {
  return Check_intersection(node_set, Link_logs(index_links), intensity_threshold);
}

}  // namespace Coms_from_k_cls_sub
}  // namespace gns
