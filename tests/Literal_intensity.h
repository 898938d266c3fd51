#pragma once

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <iterator>
#include <map>
#include <set>
#include <utility>
#include <vector>

#include "graph/Node_set.h"

namespace gns::literal {

/// The intensity method step by step on plain sets and maps: every k-subset of every clique, a
/// sweep over all pairs of k-cliques, translation rules between community indices.

using Set = std::set<Node_index>;
using Link = std::pair<Node_index, Node_index>;
using Links = std::map<Link, double>;
using Index_set = std::set<unsigned>;

inline void Get_sub_links_and_min_link_w(const Set& nodes, const Links& links, Links& sub_links,
                                         double& min_log_w) {
  min_log_w = std::log(links.at({*nodes.begin(), *std::next(nodes.begin())}));
  for (auto a = nodes.begin(); a != nodes.end(); ++a) {
    for (auto b = std::next(a); b != nodes.end(); ++b) {
      const double log = std::log(links.at({*a, *b}));
      sub_links[{*a, *b}] = log;
      if (min_log_w > log) min_log_w = log;
    }
  }
}

class Generation {
 public:
  Generation(const Links& links, unsigned k, double intensity_threshold)
      : links_(links),
        k_(k),
        log_threshold_(
            std::log(std::pow(intensity_threshold, (double(k) - 1.0) * (0.5 * double(k))))) {}

  void Add_from(const Set& clique) {
    if (clique.size() < k_) return;
    clique_.assign(clique.begin(), clique.end());
    sub_links_.clear();
    Get_sub_links_and_min_link_w(clique, links_, sub_links_, min_log_w_);
    for (std::size_t n = 0; n < clique_.size(); ++n) Iterate({clique_[n]}, n, 0.0);
  }

  std::set<Set> k_cliques;

 private:
  void Iterate(const Set& partial, std::size_t pos, double partial_sum) {
    for (std::size_t n = pos + 1; n < clique_.size(); ++n) {
      double s = partial_sum;
      for (const Node_index p : partial) s += sub_links_.at({p, clique_[n]});
      Set extended = partial;
      extended.insert(clique_[n]);
      const auto m = double(extended.size());
      const double done = (m * 0.5) * (m - 1.0);
      const double total = double((k_ - 1) * k_) * 0.5;
      const double bound = (total - done) * min_log_w_ + s;
      if (bound > log_threshold_) {
        if (extended.size() == k_)
          k_cliques.insert(extended);
        else
          Iterate_no_w(extended, n);
      } else if (extended.size() < k_) {
        Iterate(extended, n, s);
      } else if (s > log_threshold_) {
        k_cliques.insert(extended);
      }
    }
  }

  void Iterate_no_w(const Set& partial, std::size_t pos) {
    for (std::size_t n = pos + 1; n < clique_.size(); ++n) {
      Set extended = partial;
      extended.insert(clique_[n]);
      if (extended.size() == k_)
        k_cliques.insert(extended);
      else
        Iterate_no_w(extended, n);
    }
  }

  const Links& links_;
  unsigned k_;
  double log_threshold_;
  double min_log_w_ = 0.0;
  std::vector<Node_index> clique_;
  Links sub_links_;
};

inline bool Check_intersection(const Set& shared, const Links& links, double intensity_threshold) {
  const auto m = double(shared.size());
  const double link_count = (m - 1.0) * (0.5 * m);
  const double threshold = std::log(std::pow(intensity_threshold, link_count));
  Links sub_links;
  double min_log_w = 0.0;
  Get_sub_links_and_min_link_w(shared, links, sub_links, min_log_w);
  double s = 0.0;
  double c = 1.0;
  auto n = std::next(shared.begin());
  while (n != shared.end() && threshold >= (link_count - (c * 0.5) * (c - 1.0)) * min_log_w + s) {
    for (auto p = shared.begin(); p != n; ++p) s += sub_links.at({*p, *n});
    ++n;
    c += 1.0;
  }
  return n != shared.end() || s > threshold;
}

/// For each k-clique the community indices that the sweep hands to it.
inline std::vector<Index_set> Sweep(const std::vector<Set>& k_cliques, unsigned k,
                                    const Links& links, double intensity_threshold) {
  std::vector<Index_set> com_inds(k_cliques.size());
  unsigned next_free = 0;
  for (std::size_t a = 0; a < k_cliques.size(); ++a) {
    if (com_inds[a].empty()) com_inds[a].insert(next_free++);
    const unsigned c = *com_inds[a].begin();
    const Node_index second = *std::next(k_cliques[a].begin());
    for (std::size_t b = a + 1; b < k_cliques.size() && *k_cliques[b].begin() <= second; ++b) {
      Set shared;
      std::ranges::set_intersection(k_cliques[a], k_cliques[b],
                                    std::inserter(shared, shared.end()));
      if (shared.size() == k - 1 && Check_intersection(shared, links, intensity_threshold))
        com_inds[b].insert(c);
    }
  }
  return com_inds;
}

inline std::map<unsigned, unsigned> Translation_rules(const std::vector<Index_set>& com_inds) {
  std::vector<Index_set> groups;
  for (Index_set merged : com_inds) {
    if (merged.size() < 2) continue;
    std::erase_if(groups, [&](const Index_set& group) {
      const bool meets = std::ranges::any_of(group, [&](unsigned i) { return merged.contains(i); });
      if (meets) merged.insert(group.begin(), group.end());
      return meets;
    });
    groups.push_back(merged);
  }
  std::map<unsigned, unsigned> rules;
  for (const Index_set& group : groups)
    for (const unsigned index : group)
      if (index != *group.begin()) rules[index] = *group.begin();
  return rules;
}

struct Intensity_communities {
  std::map<unsigned, Set> coms;
  std::map<unsigned, std::vector<Link>> links;
};

inline Intensity_communities Communities_of(const std::set<Set>& found, unsigned k,
                                            const Links& links, double intensity_threshold) {
  const std::vector<Set> k_cliques(found.begin(), found.end());
  const std::vector<Index_set> com_inds = Sweep(k_cliques, k, links, intensity_threshold);
  const std::map<unsigned, unsigned> rules = Translation_rules(com_inds);
  Intensity_communities result;
  for (std::size_t i = 0; i < k_cliques.size(); ++i) {
    unsigned c = *com_inds[i].begin();
    if (rules.contains(c)) c = rules.at(c);
    for (auto a = k_cliques[i].begin(); a != k_cliques[i].end(); ++a) {
      result.coms[c].insert(*a);
      for (auto b = std::next(a); b != k_cliques[i].end(); ++b)
        result.links[c].emplace_back(*a, *b);
    }
  }
  return result;
}

}  // namespace gns::literal
