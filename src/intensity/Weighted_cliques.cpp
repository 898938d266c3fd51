#include "intensity/Weighted_cliques.h"

#include <algorithm>
#include <cmath>

#include "search/Clique_vector.h"

namespace gns {

Weighted_cliques::Weighted_cliques(const Clique_vector& cliques, const Index_links& index_links)
    : cliques_(cliques),
      logs_(index_links),
      clique_sizes_(index_links.size(), 0),
      largest_clique_(Max_clique_size_in_cl_vec(cliques)) {
  lowest_logs_.reserve(cliques.size());
  for (std::size_t i = 0; i < cliques.size(); ++i) {
    const Node_span clique = cliques[i];
    const auto size = static_cast<std::uint32_t>(clique.size());
    Lowest_log lowest;
    for (std::size_t a = 0; a < clique.size(); ++a) {
      for (std::size_t b = a + 1; b < clique.size(); ++b) {
        const std::size_t place = logs_.Place(clique[a], clique[b]);
        clique_sizes_[place] = std::max(clique_sizes_[place], size);
        lowest.Offer(logs_.At_place(place));
      }
    }
    lowest_logs_.push_back(lowest.Value());
  }
  for (std::size_t place = 0; place < index_links.size(); ++place) {
    const double log = std::abs(logs_.At_place(place));
    if (std::isfinite(log)) largest_log_ = std::max(largest_log_, log);
  }
  cliques_of_ = Adjacency(Node_count(), [&](auto enter) {
    for (Clique_index i = 0; i < cliques.size(); ++i)
      for (const Node_index node : cliques[i]) enter(node, i);
  });
}

}  // namespace gns
