#pragma once

#include <algorithm>
#include <map>
#include <vector>

#include "Literal_search.h"
#include "graph/Node_order.h"

namespace gns::literal {

/// The walk over gaps that gives directed cliques their order, taken literally. It never ends on
/// everyday networks.
class Directed_search {
 public:
  /// The maximal directed cliques of three nodes or more, in the order of recording.
  static std::vector<Set> Cliques(const Dir_vertex_map& map) {
    Directed_search search;
    for (Node_index node = 1; node <= map.size(); ++node) {
      search.in_[node] = Set(map.Ineighs(node).begin(), map.Ineighs(node).end());
      search.out_[node] = Set(map.Oneighs(node).begin(), map.Oneighs(node).end());
    }
    Node_order order;
    Sort_dir_vtx_map(order, map, "Neighs");
    for (const Node_index node : order) {
      search.Walk({{node, search.in_[node]}, {node, search.out_[node]}});
      for (const Node_index other : search.in_[node]) search.out_[other].erase(node);
      for (const Node_index other : search.out_[node]) search.in_[other].erase(node);
    }
    return search.cliques_;
  }

 private:
  /// A member and the candidates for the gap in front of it; the last element, with any member of
  /// the clique, holds those for the gap behind all.
  struct Element {
    Node_index member;
    Set candidates;
  };
  using Chain = std::vector<Element>;

  /// Visits what the chain can grow to.
  void Walk(Chain chain) {
    Set members;
    Set reach;
    for (const Element& element : chain) {
      members.insert(element.member);
      reach.insert(element.candidates.begin(), element.candidates.end());
    }
    reach.insert(members.begin(), members.end());
    if (Lies_inside_one(reach, cliques_)) return;
    if (reach == members && members.size() > 2) {
      std::erase_if(cliques_, [&](const Set& old) { return std::ranges::includes(members, old); });
      cliques_.push_back(members);
    }
    for (std::size_t gap = 0; gap < chain.size(); ++gap) {
      Set& candidates = chain[gap].candidates;
      while (!candidates.empty()) {
        const Node_index next = *candidates.begin();
        const Chain longer = Insert(chain, gap, next);
        candidates.erase(next);
        Walk(longer);
      }
    }
  }

  /// The chain with `next` in a gap: what stays in front has a link to it, what stays behind has
  /// one from it.
  Chain Insert(const Chain& chain, std::size_t gap, Node_index next) {
    Chain longer;
    for (std::size_t i = 0; i < chain.size(); ++i) {
      const auto& [member, candidates] = chain[i];
      if (i == gap) longer.push_back({next, Common(candidates, in_[next])});
      longer.push_back({member, Common(candidates, i < gap ? in_[next] : out_[next])});
    }
    return longer;
  }

  std::map<Node_index, Set> in_;
  std::map<Node_index, Set> out_;
  std::vector<Set> cliques_;
};

}  // namespace gns::literal
