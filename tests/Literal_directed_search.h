#pragma once

#include <algorithm>
#include <iterator>
#include <list>
#include <map>
#include <set>
#include <vector>

#include "Literal_search.h"
#include "graph/Node_order.h"
#include "graph/Vertex_map.h"

namespace gns::literal {

/// The walk over gaps that gives directed cliques their order, taken literally: sets, lists and
/// recursion. To be compared with; it never ends on everyday networks.
class Directed_search {
 public:
  /// The maximal directed cliques of three nodes or more, in the order of recording.
  static std::vector<Set> Cliques(const Dir_vertex_map& map) {
    Directed_search search(map);
    Node_order order;
    Sort_dir_vtx_map(order, map, "Neighs");
    for (const Node_index node : order) search.Search(node);
    return search.cliques_;
  }

 private:
  /// A member and the candidates for the gap in front of it; the last element closes the chain.
  struct Element {
    Node_index member;
    Set candidates;
  };
  using Chain = std::list<Element>;
  struct Neighbours {
    Set in;
    Set out;
  };

  explicit Directed_search(const Dir_vertex_map& map) {
    for (Node_index node = 1; node <= map.size(); ++node) {
      const Node_span in = map.Ineighs(node);
      const Node_span out = map.Oneighs(node);
      graph_[node] = {Set(in.begin(), in.end()), Set(out.begin(), out.end())};
    }
  }

  void Search(Node_index node) {
    known_.clear();
    for (const std::size_t clique : cliques_of_[node]) known_.push_back(cliques_[clique]);
    found_.clear();
    Walk({{node, graph_[node].in}, {node, graph_[node].out}}, 1);
    for (const auto& [key, clique] : found_) {
      for (const Node_index member : clique) cliques_of_[member].push_back(cliques_.size());
      cliques_.push_back(clique);
    }
    for (const Node_index other : graph_[node].in) graph_[other].out.erase(node);
    for (const Node_index other : graph_[node].out) graph_[other].in.erase(node);
  }

  /// Visits what the chain of `size` members can grow to.
  void Walk(Chain chain, int size) {
    if (size > 1 && !Is_new(Reach(chain))) return;
    const bool full = std::ranges::all_of(
        chain, [](const Element& element) { return element.candidates.empty(); });
    if (full && size > 2) Note(chain);
    for (auto element = chain.begin(); element != chain.end(); ++element) {
      while (!element->candidates.empty()) {
        const Node_index next = *element->candidates.begin();
        const Chain longer = Insert(chain, element, next);
        element->candidates.erase(next);
        Walk(longer, size + 1);
      }
    }
  }

  Chain Insert(const Chain& chain, Chain::const_iterator place, Node_index next) {
    Chain longer;
    const Set* linked = &graph_[next].in;
    for (auto element = chain.begin(); element != chain.end(); ++element) {
      if (element == place) {
        longer.push_back({next, Common(element->candidates, *linked)});
        linked = &graph_[next].out;
      }
      longer.push_back({element->member, Common(element->candidates, *linked)});
    }
    return longer;
  }

  /// The members and all candidates of a chain.
  static Set Reach(const Chain& chain) {
    Set all;
    for (const Element& element : chain) {
      all.insert(element.member);
      all.insert(element.candidates.begin(), element.candidates.end());
    }
    return all;
  }

  static Set Common(const Set& a, const Set& b) {
    Set common;
    std::ranges::set_intersection(a, b, std::inserter(common, common.end()));
    return common;
  }

  [[nodiscard]] bool Is_new(const Set& set) const {
    return std::ranges::none_of(
        known_, [&](const Set& clique) { return std::ranges::includes(clique, set); });
  }

  /// Notes the members as a clique and drops what was noted before and lies inside.
  void Note(Chain chain) {
    chain.pop_back();
    const Set clique = Reach(chain);
    known_.push_back(clique);
    const unsigned last = found_.empty() ? 0 : found_.rbegin()->first;
    std::erase_if(found_,
                  [&](const auto& entry) { return std::ranges::includes(clique, entry.second); });
    found_[last + 1] = clique;
  }

  std::map<Node_index, Neighbours> graph_;
  std::vector<Set> cliques_;
  std::map<Node_index, std::vector<std::size_t>> cliques_of_;
  std::vector<Set> known_;         ///< cliques that hold the node in hand
  std::map<unsigned, Set> found_;  ///< cliques of the node in hand, by the order of noting
};

}  // namespace gns::literal
