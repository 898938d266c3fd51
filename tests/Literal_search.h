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
#include "search/Left_map.h"

/// What the engine does, once more in a plain way: sets, maps and copies, to be compared with.
namespace gns::literal {

using Set = std::set<Node_index>;
/// Node -> its neighbours; every link stands at both ends. Nodes are 1..n.
using Graph = std::map<Node_index, Set>;
/// One map per clique: clique index -> number of shared nodes.
using Matrix = std::vector<std::map<Clique_index, std::uint32_t>>;

inline Clique_vector Rows_of(const std::vector<Set>& sets) {
  Clique_vector rows;
  for (const Set& set : sets) rows.push_back(std::vector<Node_index>(set.begin(), set.end()));
  return rows;
}

template <typename Rows>
std::vector<Set> Sets_of(const Rows& rows) {
  std::vector<Set> sets;
  for (std::size_t i = 0; i < rows.size(); ++i) sets.emplace_back(rows[i].begin(), rows[i].end());
  return sets;
}

inline Vertex_map Vertex_map_of(const Graph& graph) {
  std::vector<Index_pair> keys;
  for (const auto& [node, neighs] : graph)
    for (auto neigh = neighs.upper_bound(node); neigh != neighs.end(); ++neigh)
      keys.push_back({node, *neigh});
  Vertex_map vtx_map;
  Vtx_map_from_link_map(vtx_map, Index_links(keys, {}, static_cast<Node_index>(graph.size())));
  return vtx_map;
}

inline Dir_vertex_map Dir_vertex_map_of(const std::set<Index_pair>& links, Node_index node_count) {
  Dir_vertex_map map;
  Dir_vtx_map_from_link_map(map, Index_links({links.begin(), links.end()}, {}, node_count));
  return map;
}

inline Set Common(const Set& a, const Set& b) {
  Set common;
  std::ranges::set_intersection(a, b, std::inserter(common, common.end()));
  return common;
}

/// True if one of `sets` holds every member of `set`.
inline bool Lies_inside_one(const Set& set, const std::vector<Set>& sets) {
  return std::ranges::any_of(sets, [&](const Set& s) { return std::ranges::includes(s, set); });
}

/// Finds the maximal cliques that a clique grows to. `candidates` and `excluded` are linked to all
/// of it, but cliques with one of `excluded` have been found. Each clique lacks a neighbour of the
/// pivot, or the pivot would join it.
inline void Grow(const Graph& graph, Set clique, Set candidates, Set excluded,
                 std::set<Set>& found) {
  if (candidates.empty()) {
    if (excluded.empty() && clique.size() >= 3) found.insert(clique);
    return;
  }
  const Node_index pivot = *std::ranges::max_element(
      candidates, {}, [&](Node_index node) { return Common(candidates, graph.at(node)).size(); });
  for (const Node_index next : Set(candidates)) {
    const Set& neighs = graph.at(next);
    if (neighs.contains(pivot)) continue;
    clique.insert(next);
    Grow(graph, clique, Common(candidates, neighs), Common(excluded, neighs), found);
    clique.erase(next);
    candidates.erase(next);
    excluded.insert(next);
  }
}

/// The maximal cliques of three nodes or more: each with the node that comes first by number of
/// neighbours, then by index; those of one node in lexicographic order.
inline std::vector<Set> Cliques_of(const Graph& graph) {
  std::vector<Node_index> order;
  for (const auto& [node, neighs] : graph) order.push_back(node);
  std::ranges::stable_sort(order, {}, [&](Node_index node) { return graph.at(node).size(); });
  std::vector<Set> cliques;
  Set done;
  for (const Node_index node : order) {
    Set candidates = graph.at(node);
    for (const Node_index other : done) candidates.erase(other);
    std::set<Set> found;
    Grow(graph, {node}, candidates, Common(graph.at(node), done), found);
    cliques.insert(cliques.end(), found.begin(), found.end());
    done.insert(node);
  }
  return cliques;
}

/// The number of nodes that each two cliques share, where they share any.
inline Matrix Shared_nodes(const std::vector<Set>& cliques) {
  std::map<Node_index, std::vector<Clique_index>> cliques_of;
  for (Clique_index i = 0; i < cliques.size(); ++i)
    for (const Node_index node : cliques[i]) cliques_of[node].push_back(i);
  Matrix matrix(cliques.size());
  for (const auto& [node, holders] : cliques_of)
    for (const Clique_index i : holders)
      for (const Clique_index j : holders) ++matrix[i][j];
  return matrix;
}

/// The cliques with core cliques in place of what a search has left, by comparing all with all.
struct Covered_cliques {
  std::vector<Set> core;
  std::vector<Set> cliques;
  std::size_t exact_clique_count = 0;

  Covered_cliques(const Left_map& left, const std::vector<Set>& exact) {
    std::vector<Set> entries;
    for (const Set& set : Sets_of(left.neighs))
      if (!Lies_inside_one(set, entries) && !Lies_inside_one(set, exact)) entries.push_back(set);
    for (const Set& entry : entries)
      if (std::ranges::none_of(entries, [&](const Set& other) {
            return other != entry && std::ranges::includes(other, entry);
          }))
        core.push_back(entry);
    for (const Set& clique : exact)
      if (!Lies_inside_one(clique, core)) cliques.push_back(clique);
    exact_clique_count = cliques.size();
    cliques.insert(cliques.end(), core.begin(), core.end());
  }
};

}  // namespace gns::literal
