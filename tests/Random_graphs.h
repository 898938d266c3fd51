#pragma once

#include <algorithm>
#include <cstdint>
#include <random>
#include <set>

#include "Literal_search.h"

namespace gns::literal {

/// So many samples as a build has time for: one with sanitizers takes an eighth, which reaches the
/// same code, and leaves what is found in it to plain builds.
#ifdef VORLANE_SANITIZED
constexpr std::uint32_t Samples(std::uint32_t count) { return count / 8; }
#else
constexpr std::uint32_t Samples(std::uint32_t count) { return count; }
#endif

/// The same numbers from a seed whatever the standard library.
class Random {
 public:
  explicit Random(std::uint32_t seed) : engine_(seed) {}
  std::uint32_t Below(std::uint32_t limit) { return static_cast<std::uint32_t>(engine_()) % limit; }
  std::uint32_t Between(std::uint32_t least, std::uint32_t most) {
    return least + Below(most - least + 1);
  }
  bool Chance(std::uint32_t percent) { return Below(100) < percent; }
  Set Nodes(std::uint32_t node_count, std::uint32_t size) {
    Set set;
    while (set.size() < size && set.size() < node_count) set.insert(Between(1, node_count));
    return set;
  }

 private:
  std::mt19937 engine_;
};

inline void Link_all(Graph& graph, const Set& set) {
  for (const Node_index a : set)
    for (const Node_index b : set)
      if (a != b) graph[a].insert(b);
}

inline Graph Uniform(Random& random, std::uint32_t node_count, std::uint32_t percent) {
  Graph graph;
  for (Node_index a = 1; a <= node_count; ++a) {
    graph[a];
    for (Node_index b = 1; b < a; ++b)
      if (random.Chance(percent)) Link_all(graph, {a, b});
  }
  return graph;
}

/// A union of random cliques.
inline Graph Clique_rich(Random& random, std::uint32_t node_count) {
  Graph graph = Uniform(random, node_count, 0);
  for (std::uint32_t left = random.Between(1, node_count / 2 + 1); left > 0; --left)
    Link_all(graph, random.Nodes(node_count, random.Between(2, 8)));
  return graph;
}

/// Two sides that are linked completely, and a few links among the last nodes of each side: so many
/// candidates at a node that rows of bits get long, in few and small cliques.
inline Graph Two_sides(Random& random, std::uint32_t side) {
  Graph graph = Uniform(random, 2 * side, 0);
  for (Node_index a = 1; a <= side; ++a)
    for (Node_index b = side + 1; b <= 2 * side; ++b) Link_all(graph, {a, b});
  for (Node_index inner = 8; inner > 0; --inner) {
    constexpr Node_index last = 6;
    const Set pair = random.Nodes(last, 2);
    const Node_index offset = (inner % 2 + 1) * side - last;
    Link_all(graph, {*pair.begin() + offset, *pair.rbegin() + offset});
  }
  return graph;
}

/// Node 1 has so many neighbours, which are linked in so many per cent of the cases, and come
/// behind it in every search, as each has leaves of its own: most of the work may be at one node.
inline Graph With_hot_node(Random& random, std::uint32_t neighbours, std::uint32_t percent) {
  Graph graph = Uniform(random, neighbours + 1, percent);
  for (Node_index neigh = 2; neigh <= neighbours + 1; ++neigh) {
    Link_all(graph, {1, neigh});
    while (graph[neigh].size() <= neighbours)
      Link_all(graph, {neigh, static_cast<Node_index>(graph.size() + 1)});
  }
  return graph;
}

/// A graph of a kind that the seed chooses; most have 1 to 25 nodes, some up to 70.
inline Graph Random_graph(std::uint32_t seed) {
  Random random(seed);
  const std::uint32_t node_count = seed % 20 == 0 ? random.Between(40, 70) : random.Between(1, 25);
  switch (random.Below(4)) {
    case 0:
      return Uniform(random, node_count, random.Between(5, 25));
    case 1:
      return Uniform(random, node_count, random.Between(40, 95 - std::min(node_count, 55U)));
    default:
      return Clique_rich(random, node_count);
  }
}

/// Gives each link one direction or, in so many per cent of the cases, both.
inline std::set<Index_pair> Directed(Random& random, const Graph& graph, std::uint32_t mutual) {
  std::set<Index_pair> links;
  for (const auto& [node, neighs] : graph) {
    for (auto neigh = neighs.upper_bound(node); neigh != neighs.end(); ++neigh) {
      const bool both = random.Chance(mutual);
      const bool ahead = random.Chance(50);
      if (both || ahead) links.insert({node, *neigh});
      if (both || !ahead) links.insert({*neigh, node});
    }
  }
  return links;
}

}  // namespace gns::literal
