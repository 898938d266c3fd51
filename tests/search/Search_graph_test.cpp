#include <gtest/gtest.h>

#include <set>

#include "Random_graphs.h"
#include "search/Unfinished_graph.h"

namespace gns {
namespace {

/// How many local graphs a search of the graph builds.
int Local_graphs_of(const Search_graph& whole, const Node_order& order) {
  Unfinished_graph graph(whole);
  Local_graph local;
  int count = 0;
  for (const Node_index node : order) {
    count += static_cast<int>(graph.Cut_out(node, local));
    graph.Finish(node);
  }
  return count;
}

/// One clique, or two that differ in a node, must not cost a local graph per node: thousands of
/// nodes would take the cube of their number in steps.
TEST(SearchGraph, BuildsNoLocalGraphWhereAFinishedNodeCoversAll) {
  constexpr Node_index size = 40;
  const auto directed = [](auto goes_up) {
    std::set<Index_pair> links;
    for (Node_index a = 1; a <= size; ++a)
      for (Node_index b = a + 1; b <= size; ++b)
        links.insert(goes_up(a, b) ? Index_pair{a, b} : Index_pair{b, a});
    return literal::Dir_vertex_map_of(links, size);
  };
  literal::Random random(1);
  literal::Graph graph = literal::Uniform(random, size, 100);
  Node_order order;
  const Vertex_map one = literal::Vertex_map_of(graph);
  Sort_Vtx_map(order, one);
  EXPECT_EQ(Local_graphs_of({one.Rows(), order}, order), 1);

  const Dir_vertex_map chain = directed([](Node_index, Node_index) { return true; });
  EXPECT_EQ(Local_graphs_of({chain, order}, order), 1);
  // Every node closes cycles with some of the others: each has cliques of its own.
  const Dir_vertex_map cyclic =
      directed([](Node_index a, Node_index b) { return (b - a) % 2 == 1; });
  EXPECT_GT(Local_graphs_of({cyclic, order}, order), 30);

  graph[1].erase(2);
  graph[2].erase(1);
  const Vertex_map two = literal::Vertex_map_of(graph);
  Sort_Vtx_map(order, two);
  EXPECT_EQ(Local_graphs_of({two.Rows(), order}, order), 2);
}

}  // namespace
}  // namespace gns
