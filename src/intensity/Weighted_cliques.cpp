#include "intensity/Weighted_cliques.h"

#include <algorithm>
#include <cmath>
#include <numeric>

#include "search/Clique_vector.h"

namespace gns {

namespace {

constexpr std::size_t none = ~std::size_t{0};

}  // namespace

Weighted_cliques::Weighted_cliques(const Clique_vector& cliques, const Index_links& index_links)
    : cliques_(cliques),
      logs_(index_links),
      clique_sizes_(index_links.size(), 0),
      largest_clique_of_(std::size_t{index_links.Node_count()} + 1, 0),
      largest_clique_(Max_clique_size_in_cl_vec(cliques)) {
  for (std::size_t i = 0; i < cliques.size(); ++i)
    if (cliques[i].back() > Node_count()) throw Missing_link();
  cliques_of_ = Adjacency(Node_count(), [&](auto enter) {
    for (Clique_index i = 0; i < cliques.size(); ++i)
      for (const Node_index node : cliques[i]) enter(node, i);
  });
  Look_at_links_of_cliques();
  Rank_links();
  for (std::size_t place = 0; place < index_links.size(); ++place) {
    const double log = std::abs(logs_.At_place(place));
    if (std::isfinite(log)) largest_log_ = std::max(largest_log_, log);
  }
}

/// Goes through the links by their first nodes, so that the place of each is at hand.
void Weighted_cliques::Look_at_links_of_cliques() {
  std::vector<std::uint32_t> passed(cliques_.size(), 0);  // per clique: nodes
  std::vector<Lowest_log> lowest(cliques_.size());
  std::vector<std::size_t> place_of(std::size_t{Node_count()} + 1, none);  // of links of a node
  for (Node_index first = 1; first <= Node_count(); ++first) {
    const Node_span row = logs_.Links().Row(first);
    const std::size_t start = logs_.Links().Start(first);
    for (std::size_t i = 0; i < row.size(); ++i) place_of[row[i]] = start + i;
    for (const Clique_index clique : cliques_of_[first]) {
      const auto size = static_cast<std::uint32_t>(cliques_[clique].size());
      largest_clique_of_[first] = std::max(largest_clique_of_[first], size);
      for (const Node_index second : cliques_[clique].subspan(++passed[clique])) {
        const std::size_t place = place_of[second];
        if (place == none) throw Missing_link();
        clique_sizes_[place] = std::max(clique_sizes_[place], size);
        lowest[clique].Offer(logs_.At_place(place));
      }
    }
    for (const Node_index second : row) place_of[second] = none;
  }
  for (const Lowest_log& log : lowest) lowest_logs_.push_back(log.Value());
}

void Weighted_cliques::Rank_links() {
  constexpr std::uint32_t least_k = 3;
  first_end_.assign(Node_count() + std::size_t{2}, 0);
  const auto for_each_end = [&](auto use) {
    for (Node_index first = 1; first <= Node_count(); ++first)
      For_each_link(first, least_k, [&](Node_index second, double log, std::uint32_t size) {
        if (std::isnan(log)) log = std::numeric_limits<double>::infinity();
        use(first, Link_end{log, second, size});
        use(second, Link_end{log, first, size});
      });
  };
  for_each_end([&](Node_index node, const Link_end&) { ++first_end_[node + std::size_t{1}]; });
  std::partial_sum(first_end_.begin(), first_end_.end(), first_end_.begin());
  link_ends_.resize(first_end_.back());
  std::vector<std::size_t> next(first_end_);
  for_each_end([&](Node_index node, const Link_end& end) { link_ends_[next[node]++] = end; });
  for (Node_index node = 1; node <= Node_count(); ++node)
    std::sort(link_ends_.begin() + static_cast<std::ptrdiff_t>(first_end_[node]),
              link_ends_.begin() + static_cast<std::ptrdiff_t>(first_end_[node + 1]),
              [](const Link_end& a, const Link_end& b) { return a.log > b.log; });
}

}  // namespace gns
