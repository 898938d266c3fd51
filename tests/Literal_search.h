#pragma once

#include <algorithm>
#include <cstdint>
#include <iterator>
#include <map>
#include <set>
#include <utility>
#include <vector>

#include "graph/Link_conversion.h"
#include "graph/Vertex_map.h"
#include "search/Clique_vector.h"

/// The searches as they were first thought of: maps, sets and copies, no cleverness. The order of
/// their results is the one that the fast ones have to keep.
namespace gns::literal {

using Set = std::set<Node_index>;
/// Node -> its neighbours; every link stands at both ends.
using Graph = std::map<Node_index, Set>;
/// One map per clique: clique index -> number of shared nodes.
using Matrix = std::vector<std::map<Clique_index, std::uint32_t>>;

inline Set Members(Node_span row) { return {row.begin(), row.end()}; }

inline Clique_vector Rows_of(const std::vector<Set>& sets) {
  Clique_vector rows;
  for (const Set& set : sets) rows.push_back(std::vector<Node_index>(set.begin(), set.end()));
  return rows;
}

/// The same graph for the search under test. Nodes are 1..n without gaps.
inline Vertex_map Vertex_map_of(const Graph& graph) {
  std::vector<Index_pair> keys;
  for (const auto& [node, neighs] : graph)
    for (auto neigh = neighs.upper_bound(node); neigh != neighs.end(); ++neigh)
      keys.push_back({node, *neigh});
  Vertex_map vtx_map;
  Vtx_map_from_link_map(vtx_map, Index_links(keys, {}, static_cast<Node_index>(graph.size())));
  return vtx_map;
}

/// (a intersected with b) minus c.
inline Set Tighten(const Set& a, const Set& b, const Set& c) {
  Set result;
  for (const Node_index node : a)
    if (b.contains(node) && !c.contains(node)) result.insert(node);
  return result;
}

/// True if no known set contains all of `set`.
inline bool Mehet_tovabb(const std::vector<Set>& known, const Set& set) {
  return std::none_of(known.begin(), known.end(), [&](const Set& clique) {
    return std::includes(clique.begin(), clique.end(), set.begin(), set.end());
  });
}

inline Set United(Set a, const Set& b) {
  a.insert(b.begin(), b.end());
  return a;
}

/// What every search records: cliques, their overlap matrix, and for each node its cliques.
struct Record {
  std::vector<Set> cliques;
  Matrix overlap_matrix;
  std::map<Node_index, std::vector<Clique_index>> node_cls;
  std::map<Node_index, std::vector<Set>> inc_neighs;

  void Iktatjuk_az_uj_math_cliquet(const Set& clique) {
    const auto i = static_cast<Clique_index>(cliques.size());
    overlap_matrix.push_back({{i, static_cast<std::uint32_t>(clique.size())}});
    for (const Node_index member : clique) {
      for (const Clique_index c : node_cls[member]) {
        ++overlap_matrix[c][i];
        ++overlap_matrix[i][c];
      }
      node_cls[member].push_back(i);
      inc_neighs[member].push_back(clique);
      inc_neighs[member].back().erase(member);
    }
    cliques.push_back(clique);
  }
};

/// Nodes by number of neighbours, among equals by index.
inline std::vector<Node_index> Sorted_nodes(const Graph& graph) {
  std::vector<std::pair<std::size_t, Node_index>> pairs;
  for (const auto& [node, neighs] : graph) pairs.emplace_back(neighs.size(), node);
  std::sort(pairs.begin(), pairs.end());
  std::vector<Node_index> order;
  for (const auto& pair : pairs) order.push_back(pair.second);
  return order;
}

/// The exact undirected search: no pivot, no excluded set, but a look at what is known already.
class Exact_search {
 public:
  explicit Exact_search(const Graph& graph) : work_map_(graph) {
    for (const Node_index node : Sorted_nodes(graph)) {
      Main_investigation(node);
      work_map_.erase(node);
    }
  }
  [[nodiscard]] const Record& Found() const { return record_; }

 private:
  void Main_investigation(Node_index node) {
    const Set neighs = work_map_[node];
    std::vector<Set> known = record_.inc_neighs[node];
    for (Set& set : known) set.insert(node);
    Set remaining = neighs;
    while (remaining.size() >= 2) {
      const Node_index first = *remaining.begin();
      const Set clique = {node, first};
      Set cands = Tighten(work_map_[first], remaining, clique);
      remaining.erase(first);
      if (!Mehet_tovabb(known, United(clique, cands))) continue;
      while (!cands.empty()) {
        const Node_index next = *cands.begin();
        cands.erase(next);
        Recurrent_investigation(next, clique, cands, known);
      }
    }
    for (const Node_index neigh : neighs) work_map_[neigh].erase(node);
  }

  void Recurrent_investigation(Node_index next, Set clique, const Set& cands,
                               std::vector<Set>& known) {
    Set tight = Tighten(work_map_[next], cands, clique);
    clique.insert(next);
    if (tight.empty() && Mehet_tovabb(known, clique)) {
      record_.Iktatjuk_az_uj_math_cliquet(clique);
      known.push_back(clique);
      return;
    }
    if (!Mehet_tovabb(known, United(clique, tight))) return;
    while (!tight.empty()) {
      const Node_index smallest = *tight.begin();
      tight.erase(smallest);
      Recurrent_investigation(smallest, clique, tight, known);
    }
  }

  Graph work_map_;
  Record record_;
};

}  // namespace gns::literal
