#pragma once

#include <algorithm>
#include <cstdint>
#include <numeric>
#include <random>
#include <utility>
#include <vector>

#include "Literal_search.h"

namespace gns::literal {

/// The same numbers from a seed whatever the standard library.
class Random {
 public:
  explicit Random(std::uint32_t seed) : engine_(seed) {}
  std::uint32_t Below(std::uint32_t limit) { return static_cast<std::uint32_t>(engine_()) % limit; }
  std::uint32_t Between(std::uint32_t least, std::uint32_t most) {
    return least + Below(most - least + 1);
  }
  bool Chance(std::uint32_t percent) { return Below(100) < percent; }
  Node_index Node(std::uint32_t node_count) { return 1 + Below(node_count); }
  Set Nodes(std::uint32_t node_count, std::uint32_t size) {
    Set set;
    while (set.size() < size && set.size() < node_count) set.insert(Node(node_count));
    return set;
  }

 private:
  std::mt19937 engine_;
};

inline Graph Without_links(std::uint32_t node_count) {
  Graph graph;
  for (Node_index node = 1; node <= node_count; ++node) graph[node];
  return graph;
}

inline void Link(Graph& graph, Node_index a, Node_index b) {
  if (a == b) return;
  graph[a].insert(b);
  graph[b].insert(a);
}

inline void Link_all(Graph& graph, const Set& set) {
  for (const Node_index a : set)
    for (const Node_index b : set) Link(graph, a, b);
}

inline Graph Uniform(Random& random, std::uint32_t node_count, std::uint32_t percent) {
  Graph graph = Without_links(node_count);
  for (Node_index a = 1; a <= node_count; ++a)
    for (Node_index b = 1; b < a; ++b)
      if (random.Chance(percent)) Link(graph, a, b);
  return graph;
}

/// A union of random cliques.
inline Graph Clique_rich(Random& random, std::uint32_t node_count) {
  Graph graph = Without_links(node_count);
  for (std::uint32_t left = random.Between(1, node_count / 2 + 1); left > 0; --left)
    Link_all(graph, random.Nodes(node_count, random.Between(2, 8)));
  return graph;
}

/// Chains of cliques, each sharing some nodes with the one before it, and a little noise.
inline Graph Planted(Random& random, std::uint32_t node_count) {
  Graph graph = Without_links(node_count);
  Set before;
  for (std::uint32_t left = node_count / 4 + 1; left > 0; --left) {
    Set clique = random.Nodes(node_count, random.Between(2, 4));
    for (const Node_index node : before)
      if (random.Chance(60)) clique.insert(node);
    Link_all(graph, clique);
    before = random.Chance(20) ? Set() : clique;
  }
  for (std::uint32_t left = random.Below(3); left > 0; --left)
    Link(graph, random.Node(node_count), random.Node(node_count));
  return graph;
}

/// Complete but for a few links among the first nodes, so that cliques are nearly as large as the
/// graph. (Missing links among the last ones would keep the literal search busy for ever.)
inline Graph Nearly_complete(Random& random, std::uint32_t node_count, std::uint32_t missing) {
  Graph graph = Uniform(random, node_count, 100);
  const std::uint32_t first_nodes = std::min(node_count, 10U);
  for (; missing > 0; --missing) {
    const Node_index a = random.Node(first_nodes);
    const Node_index b = random.Node(first_nodes);
    graph[a].erase(b);
    graph[b].erase(a);
  }
  return graph;
}

/// Two sides that are linked completely, and `inner` links inside the sides: nodes of many
/// neighbours in few and small cliques.
inline Graph Two_sides(Random& random, std::uint32_t side, std::uint32_t inner) {
  Graph graph = Without_links(2 * side);
  for (Node_index a = 1; a <= side; ++a)
    for (Node_index b = side + 1; b <= 2 * side; ++b) Link(graph, a, b);
  for (; inner > 0; --inner) {
    const Node_index offset = random.Below(2) * side;
    Link(graph, offset + random.Node(side), offset + random.Node(side));
  }
  return graph;
}

/// A node whose neighbours have more neighbours than itself, leaves, and `inner` links from a few
/// of them to the others: all cliques are found at that one node.
inline Graph Hub(Random& random, std::uint32_t neighbours, std::uint32_t inner) {
  const Node_index hub = neighbours + 1;
  Graph graph = Without_links(hub + neighbours * neighbours);
  for (Node_index neigh = 1; neigh <= neighbours; ++neigh) {
    Link(graph, hub, neigh);
    for (std::uint32_t leaf = 0; leaf < neighbours; ++leaf)
      Link(graph, neigh, hub + (neigh - 1) * neighbours + leaf + 1);
  }
  for (; inner > 0; --inner) Link(graph, random.Node(4), random.Node(neighbours));
  return graph;
}

/// The same graph with its nodes numbered anew.
inline Graph Shuffled(Random& random, const Graph& graph) {
  std::vector<Node_index> number(graph.size() + 1);
  std::iota(number.begin(), number.end(), 0U);
  for (std::uint32_t i = static_cast<std::uint32_t>(graph.size()); i > 1; --i)
    std::swap(number[i], number[random.Node(i)]);
  Graph shuffled;
  for (const auto& [node, neighs] : graph) {
    Set& row = shuffled[number[node]];
    for (const Node_index neigh : neighs) row.insert(number[neigh]);
  }
  return shuffled;
}

/// A graph of a kind that the seed chooses; most have 1 to 25 nodes, some up to 70.
inline Graph Random_graph(std::uint32_t seed) {
  Random random(seed);
  const std::uint32_t node_count = seed % 20 == 0 ? random.Between(40, 70) : random.Between(1, 25);
  switch (random.Below(6)) {
    case 0:
      return Uniform(random, node_count, random.Between(5, 25));
    case 1:
      return Uniform(random, node_count, random.Between(40, 95 - std::min(node_count, 55U)));
    case 2:
      return Nearly_complete(random, node_count, random.Below(8));
    case 3:
      return Planted(random, node_count);
    default:
      return Clique_rich(random, node_count);
  }
}

}  // namespace gns::literal
