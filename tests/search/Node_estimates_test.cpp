#include "search/Node_estimates.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <numeric>
#include <vector>

#include "Literal_search.h"
#include "Random_graphs.h"
#include "search/Range_search.h"
#include "search/Undirected_search.h"
#include "search/Walk_work.h"

namespace gns {
namespace {

/// Whatever the size, and where powers get too small or too great for a number.
TEST(NodeEstimates, HaveAValueForEveryWalk) {
  constexpr std::uint64_t most = std::uint64_t{1} << 60U;
  for (const std::uint64_t nodes : {0U, 1U, 2U, 11U, 12U, 64U, 300U, 1100U, 5000U}) {
    const std::uint64_t pairs = nodes == 0 ? 0 : nodes * (nodes - 1) / 2;
    std::uint64_t dearest = 0;
    for (const std::uint64_t links :
         {std::uint64_t{0}, pairs / 100, pairs / 2, pairs - pairs / 100, pairs}) {
      const std::uint64_t work = Walk_work(nodes, links);
      EXPECT_LT(work, most) << nodes << " " << links;
      dearest = std::max(dearest, work);
    }
    EXPECT_GE(dearest, nodes);
    if (nodes >= candidates_with_links) {
      EXPECT_LT(Walk_work(nodes, pairs), dearest / 5) << "a clique is found at once: " << nodes;
    }
  }
}

/// In a random graph the estimates tell how many cliques the walks find, far better than the number
/// of candidates, by which two nodes of the same degree look alike.
TEST(NodeEstimates, TellWalksApart) {
  literal::Random random(1);
  std::vector<std::uint64_t> estimates;
  std::vector<std::size_t> found;
  for (const std::uint32_t percent : {10U, 30U, 50U, 70U, 80U}) {
    const Vertex_map vertices = literal::Vertex_map_of(literal::With_hot_node(random, 60, percent));
    Node_order order;
    Sort_Vtx_map(order, vertices);
    const Search_graph graph(vertices.Rows(), order);
    const auto hot =
        static_cast<std::size_t>(std::ranges::find(order, Node_index{1}) - order.begin());
    estimates.push_back(Estimates_of_nodes(graph, order)[hot]);
    Undirected_node_search search(graph);
    Clique_vector cliques;
    Range_search(search, order).Find({hot, hot + 1}, cliques);
    found.push_back(cliques.size());
  }
  EXPECT_TRUE(std::ranges::is_sorted(found));
  EXPECT_TRUE(std::ranges::is_sorted(estimates));
  EXPECT_GT(found.back(), 50 * found.front());
  EXPECT_GT(estimates.back(), 10 * estimates.front());
}

/// All cliques of the network hold the hot node; what is behind it is covered. In a directed
/// network that may be otherwise, as there cycles keep nodes out of cliques.
TEST(NodeEstimates, SeeWhatAHotNodeCovers) {
  literal::Random random(3);
  const literal::Graph graph = literal::With_hot_node(random, 70, 50);
  const auto share_of_hot = [](const Search_graph& searched, const Node_order& order) {
    const std::vector<std::uint64_t> estimates = Estimates_of_nodes(searched, order);
    const auto all = std::accumulate(estimates.begin(), estimates.end(), std::uint64_t{0});
    const auto hot = std::ranges::find(order, Node_index{1}) - order.begin();
    return static_cast<double>(estimates[static_cast<std::size_t>(hot)]) / static_cast<double>(all);
  };
  const Vertex_map vertices = literal::Vertex_map_of(graph);
  Node_order order;
  Sort_Vtx_map(order, vertices);
  EXPECT_GT(share_of_hot(Search_graph(vertices.Rows(), order), order), 0.8);
  const Dir_vertex_map directed = literal::Dir_vertex_map_of(literal::Directed(random, graph, 30),
                                                             static_cast<Node_index>(graph.size()));
  EXPECT_LT(share_of_hot(Search_graph(directed, order), order), 0.5);
}

}  // namespace
}  // namespace gns
