#pragma once

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <iterator>
#include <map>
#include <numeric>
#include <set>
#include <utility>
#include <vector>

#include "Literal_search.h"

/// The intensity method step by step on plain sets and maps: every k-subset of every clique, all
/// pairs of k-cliques. Logarithms are added up in the order that decides on ties.
namespace gns::literal {

using Link = std::pair<Node_index, Node_index>;
using Weighted_links = std::map<Link, double>;

inline double Link_count(std::size_t nodes) {
  return 0.5 * static_cast<double>(nodes) * (static_cast<double>(nodes) - 1.0);
}

inline double Log_of_power(double intensity_threshold, std::size_t nodes) {
  return std::log(std::pow(intensity_threshold, Link_count(nodes)));
}

/// The sum, from `sum` on, with the links of `node` to `others`.
inline double Added_up(double sum, const Set& others, Node_index node,
                       const Weighted_links& links) {
  for (const Node_index other : others) sum += std::log(links.at({other, node}));
  return sum;
}

/// The lowest logarithm inside a set; one that is not a number counts only in front.
inline double Lowest_log(const Set& set, const Weighted_links& links) {
  double lowest = std::log(links.at({*set.begin(), *std::next(set.begin())}));
  for (auto a = set.begin(); a != set.end(); ++a)
    for (auto b = std::next(a); b != set.end(); ++b)
      lowest = std::min(lowest, std::log(links.at({*a, *b})));
  return lowest;
}

/// The k-subsets of cliques that pass. As soon as a part of a subset passes with the lowest
/// logarithm for all links to come, whatever it grows to passes.
struct Generation {
  const Weighted_links& links;
  std::size_t k;
  double threshold = 0.0;
  std::set<Set> k_cliques = {};

  void Add_from(const Set& clique) {
    if (clique.size() < k) return;
    for (const Node_index node : clique)
      Extend({node}, clique, 0.0, Lowest_log(clique, links), false);
  }

  void Extend(const Set& part, const Set& clique, double part_sum, double lowest, bool passes) {
    for (auto next = clique.upper_bound(*part.rbegin()); next != clique.end(); ++next) {
      const double sum = Added_up(part_sum, part, *next, links);
      Set longer = part;
      longer.insert(*next);
      const double missing = Link_count(k) - Link_count(longer.size());
      const bool all_pass = passes || missing * lowest + sum > threshold;
      if (longer.size() < k)
        Extend(longer, clique, sum, lowest, all_pass);
      else if (all_pass || sum > threshold)
        k_cliques.insert(longer);
    }
  }
};

inline bool Check_intersection(const Set& shared, const Weighted_links& links,
                               double intensity_threshold) {
  const double threshold = Log_of_power(intensity_threshold, shared.size());
  const double lowest = Lowest_log(shared, links);
  double sum = 0.0;
  Set part = {*shared.begin()};
  while (part.size() < shared.size()) {
    const double missing = Link_count(shared.size()) - Link_count(part.size());
    if (!(threshold >= missing * lowest + sum)) return true;
    const Node_index next = *shared.upper_bound(*part.rbegin());
    sum = Added_up(sum, part, next, links);
    part.insert(next);
  }
  return sum > threshold;
}

/// For each k-clique the first one of its community.
inline std::vector<std::size_t> Communities_of(const std::vector<Set>& k_cliques,
                                               const Weighted_links& links,
                                               double intensity_threshold) {
  std::vector<std::size_t> first_of(k_cliques.size());
  std::iota(first_of.begin(), first_of.end(), 0U);
  for (std::size_t a = 0; a < k_cliques.size(); ++a) {
    const Node_index second = *std::next(k_cliques[a].begin());
    for (std::size_t b = a + 1; b < k_cliques.size() && *k_cliques[b].begin() <= second; ++b) {
      const Set shared = Common(k_cliques[a], k_cliques[b]);
      if (first_of[a] == first_of[b] || shared.size() + 1 != k_cliques[a].size() ||
          !Check_intersection(shared, links, intensity_threshold))
        continue;
      const auto [first, other] = std::minmax({first_of[a], first_of[b]});
      std::ranges::replace(first_of, other, first);
    }
  }
  return first_of;
}

}  // namespace gns::literal
