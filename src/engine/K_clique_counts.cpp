#include "engine/K_clique_counts.h"

#include <algorithm>

#include "control/Run_control.h"
#include "engine/Clique_partners.h"

namespace gns {

namespace {

/// The number of subsets of k nodes, or `most` if there are more.
double Subsets(double nodes, double k) {
  if (k > nodes || k < 0) return 0.0;
  k = std::min(k, nodes - k);  // and as many of the others
  double count = 1.0;
  for (std::uint32_t i = 1; i <= k && count < K_clique_counts::most; ++i)
    count *= (nodes - k + i) / i;
  return std::min(count, K_clique_counts::most);
}

/// As many as `all` less those inside, rounded up.
double Rest(double all, double inside) {
  constexpr double error = 1e-9;
  if (all >= K_clique_counts::most) return K_clique_counts::most;
  return std::max(0.0, all * (1 + error) - inside * (1 - error));
}

}  // namespace

K_clique_counts::K_clique_counts(const Clique_vector& cliques, const Node_names& node_names) {
  Clique_partners partners(node_names.size(), cliques.size());
  for (Clique_index i = 0; i < cliques.size(); ++i) {
    external_control::Check_inside_long_stage();
    double all_bytes = 0.0;
    for (const Node_index node : cliques[i])
      all_bytes += static_cast<double>(node_names[node].size() + 1);
    const Clique_partners::Partner partner = partners.Of(i, cliques[i]);
    double shared_bytes = 0.0;
    if (partner.shared > 0)
      partners.For_each_shared(cliques[i], partner, [&](Node_index node) {
        shared_bytes += static_cast<double>(node_names[node].size() + 1);
      });
    Kind& kind = kinds_[{cliques[i].size(), partner.shared}];
    kind.cliques += 1;
    kind.name_bytes += all_bytes;
    kind.shared_bytes += shared_bytes;
  }
}

/// Each node of a clique is in as many subsets as there are of one node less without it.
K_clique_counts::Figures K_clique_counts::At(std::uint32_t k) const {
  Figures figures;
  for (const auto& [nodes, kind] : kinds_) {
    const auto all = static_cast<double>(nodes.first);
    const auto shared = static_cast<double>(nodes.second);
    if (all < k) continue;
    figures.k_cliques += kind.cliques * Rest(Subsets(all, k), Subsets(shared, k));
    figures.name_bytes += Rest(kind.name_bytes * Subsets(all - 1, k - 1.0),
                               kind.shared_bytes * Subsets(shared - 1, k - 1.0));
  }
  return {std::min(figures.k_cliques, most), std::min(figures.name_bytes, most)};
}

}  // namespace gns
