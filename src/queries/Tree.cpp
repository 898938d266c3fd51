#include "queries/Tree.h"

#include <algorithm>
#include <limits>

namespace vorlane::queries {

namespace {

constexpr std::size_t none = std::numeric_limits<std::size_t>::max();

/// For each clique its community; `none` beyond those that a community has.
std::vector<std::size_t> Community_of_clique(const Rows& cliques) {
  std::vector<std::size_t> community;
  for (std::size_t i = 0; i < cliques.size(); ++i)
    for (const std::uint32_t clique : cliques[i]) {
      if (clique >= community.size()) community.resize(clique + std::size_t{1}, none);
      community[clique] = i;
    }
  return community;
}

/// The parents of the communities of `upper` among those of `lower`, by the first clique of each.
std::vector<std::size_t> Parents_by_clique(const Rows& upper, const Rows& lower) {
  const std::vector<std::size_t> community = Community_of_clique(lower);
  std::vector<std::size_t> parents;
  for (const auto cliques : upper) {
    const std::uint32_t clique = cliques.front();
    parents.push_back(clique < community.size() ? community[clique] : none);
  }
  return parents;
}

/// By nodes: the smallest one around.
std::vector<std::size_t> Parents_by_nodes(const Rows& upper, const Rows& lower) {
  std::vector<std::size_t> parents;
  for (const auto members : upper) {
    std::size_t parent = none;
    for (std::size_t i = 0; i < lower.size(); ++i)
      if ((parent == none || lower[i].size() < lower[parent].size()) &&
          std::ranges::includes(lower[i], members))
        parent = i;
    parents.push_back(parent);
  }
  return parents;
}

}  // namespace

std::vector<Tree_node> Tree_of(const Results& results) {
  const bool by_cliques = results.Method() != Method::intensity;
  std::vector<Tree_node> tree;
  Rows lower;
  bool has_lower = false;
  const std::vector<std::uint32_t> ascending(results.Ks().rbegin(), results.Ks().rend());
  for (const std::uint32_t k : ascending) {
    const Rows rows = by_cliques ? results.Cliques_at(k) : results.At(k).members;
    std::vector<std::size_t> parents(rows.size(), none);
    if (has_lower)
      parents = by_cliques ? Parents_by_clique(rows, lower) : Parents_by_nodes(rows, lower);
    for (std::size_t i = 0; i < rows.size(); ++i)
      tree.push_back({{k, i}, parents[i] == none ? std::nullopt : std::optional(parents[i])});
    lower = rows;
    has_lower = true;
  }
  return tree;
}

}  // namespace vorlane::queries
