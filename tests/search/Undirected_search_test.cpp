#include "search/Undirected_search.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <bit>
#include <map>
#include <set>
#include <sstream>
#include <stdexcept>
#include <string>
#include <thread>
#include <typeinfo>
#include <utility>
#include <vector>

#include "Literal_search.h"
#include "Random_graphs.h"
#include "control/Clique_find_ext_cont.h"
#include "search/Clique_reports.h"
#include "search/Overlap_matrix.h"

namespace gns {
namespace {

using literal::Graph;
using literal::Set;

std::vector<Set> Cliques_of(const Graph& graph) {
  Clique_vector rows;
  Overlap_matrix matrix;
  Clique_find_ec(rows, matrix, literal::Vertex_map_of(graph));
  std::vector<Set> cliques;
  for (std::size_t i = 0; i < rows.size(); ++i) cliques.push_back(literal::Members(rows[i]));
  return cliques;
}

void Expect_like_literal_search(const Graph& graph) {
  const literal::Exact_search search(graph);
  ASSERT_EQ(Cliques_of(graph), search.Found().cliques);

  Clique_vector cliques;
  Overlap_matrix matrix;
  Clique_find_ec(cliques, matrix, literal::Vertex_map_of(graph));
  ASSERT_EQ(matrix.size(), cliques.size());
  for (Clique_index i = 0; i < cliques.size(); ++i) {
    const std::map<Clique_index, std::uint32_t>& row = search.Found().overlap_matrix[i];
    ASSERT_EQ(matrix.Row(i), (std::vector<Overlap_matrix::Entry>(row.begin(), row.end())));
  }
}

TEST(UndirectedSearch, EqualsLiteralSearchOnRandomGraphs) {
  for (std::uint32_t seed = 0; seed < 3000; ++seed) {
    Expect_like_literal_search(literal::Random_graph(seed));
    if (HasFatalFailure()) FAIL() << "seed " << seed;
  }
}

/// More than 64 and more than 128 candidates at one node.
TEST(UndirectedSearch, EqualsLiteralSearchOnLongBitRows) {
  literal::Random random(1);
  Expect_like_literal_search(literal::Two_sides(random, 67, 5));
  Expect_like_literal_search(literal::Shuffled(random, literal::Two_sides(random, 72, 3)));
  Expect_like_literal_search(literal::Shuffled(random, literal::Two_sides(random, 133, 2)));
  Expect_like_literal_search(literal::Nearly_complete(random, 131, 4));
  Expect_like_literal_search(literal::Hub(random, 90, 120));
  Expect_like_literal_search(literal::Hub(random, 135, 120));
}

/// All sets of three nodes or more that are linked completely and lie in no other such set.
std::set<Set> Maximal_subsets(const Graph& graph) {
  const auto node_count = static_cast<Node_index>(graph.size());
  const auto members_of = [](std::uint32_t subset) {
    Set set;
    for (Node_index node = 1; subset != 0; ++node, subset >>= 1U)
      if ((subset & 1U) != 0) set.insert(node);
    return set;
  };
  const auto linked_to_all = [&](Node_index node, const Set& set) {
    return std::ranges::all_of(
        set, [&](Node_index other) { return other == node || graph.at(node).contains(other); });
  };
  std::set<Set> found;
  for (std::uint32_t subset = 0; subset < 1U << node_count; ++subset) {
    if (std::popcount(subset) < 3) continue;
    const Set set = members_of(subset);
    bool maximal_clique = true;
    for (Node_index node = 1; node <= node_count && maximal_clique; ++node)
      maximal_clique = linked_to_all(node, set) == set.contains(node);
    if (maximal_clique) found.insert(set);
  }
  return found;
}

TEST(UndirectedSearch, FindsAllMaximalSubsets) {
  for (std::uint32_t seed = 0; seed < 150; ++seed) {
    literal::Random random(seed);
    const Graph graph = literal::Uniform(random, random.Between(1, 11), random.Between(20, 95));
    const std::vector<Set> cliques = Cliques_of(graph);
    ASSERT_EQ(std::set<Set>(cliques.begin(), cliques.end()), Maximal_subsets(graph)) << seed;
    ASSERT_EQ(cliques.size(), Maximal_subsets(graph).size()) << seed;
  }
}

TEST(UndirectedSearch, KnownGraphs) {
  struct Case {
    std::vector<std::pair<Node_index, Node_index>> links;
    std::vector<Set> cliques;
  };
  for (const Case& c : std::vector<Case>{
           {{}, {}},
           {{{1, 2}}, {}},
           {{{1, 2}, {2, 3}, {3, 4}}, {}},
           {{{1, 2}, {1, 3}, {1, 4}}, {}},
           {{{1, 2}, {1, 3}, {2, 3}}, {{1, 2, 3}}},
           {{{1, 2}, {1, 3}, {1, 4}, {2, 3}, {2, 4}, {3, 4}}, {{1, 2, 3, 4}}},
           {{{1, 2}, {1, 3}, {2, 3}, {2, 4}, {3, 4}, {4, 5}}, {{1, 2, 3}, {2, 3, 4}}},
           // The nodes of the second clique have fewer neighbours, so it comes first.
           {{{1, 2}, {1, 3}, {1, 4}, {2, 3}, {2, 4}, {3, 4}, {5, 6}, {5, 7}, {6, 7}},
            {{5, 6, 7}, {1, 2, 3, 4}}},
       }) {
    Graph graph;
    for (const auto& [a, b] : c.links) literal::Link(graph, a, b);
    EXPECT_EQ(Cliques_of(graph), c.cliques);
  }
}

TEST(SearchReports, Texts) {
  using namespace Clique_find_report_sub_routines;
  std::ostringstream text;
  Report_progress(" Locating cliques:", "nodes", 42, 100, text);
  Report_progress("T", "longer", "units", 1, 4, text);
  Report_progress("longer", "T", "units", 3, 3, text);
  Report_clique_search_end("cliques", 1000, text);
  EXPECT_EQ(text.str(),
            "__________________\n Locating cliques:\n 42 of 100 nodes to do (58.00% done)\n"
            "______\nT\nlonger\n 1 of 4 units to do (75.00% done)\n"
            "______\nlonger\nT\n 3 of 3 units to do (0.00% done)\n"
            "_______________________________\n Altogether 1000 cliques found.\n");
}

TEST(SearchReports, EndOfTheSearch) {
  Cliques_of({});
  EXPECT_EQ(Read_state_report(), "____________________________\n Altogether 0 cliques found.\n");
}

TEST(UndirectedSearch, AStopLeavesCliquesAndMatrixInAgreement) {
  const Clique_vector others = literal::Rows_of({{1, 2, 3}, {2, 3, 4}});
  Clique_vector cliques = others;
  Overlap_matrix matrix(others);
  Graph triangle;
  literal::Link_all(triangle, {1, 2, 3});
  Stop_process();
  EXPECT_THROW(Clique_find_ec(cliques, matrix, literal::Vertex_map_of(triangle)), std::logic_error);
  EXPECT_EQ(matrix.size(), cliques.size());
  Reset_stop_process();
}

/// The exact search polls for the nodes alone, the one with a limit once more behind them.
TEST(UndirectedSearch, PollsWithoutNodes) {
  Clique_vector cliques;
  Overlap_matrix matrix;
  Left_map left;
  Stop_process();
  EXPECT_NO_THROW(Clique_find_ec(cliques, matrix, {}));
  EXPECT_TRUE(Read_state_report().ends_with(" Altogether 0 cliques found.\n"));
  EXPECT_THROW(Clique_find_part_time_ec(cliques, matrix, {}, left, {1.0}), std::logic_error);
  Reset_stop_process();
}

/// A graph whose cliques nobody can list: 30 groups of three, linked to all but their own group.
Graph Endless() {
  Graph graph = literal::Without_links(90);
  for (Node_index a = 1; a <= 90; ++a)
    for (Node_index b = 1; b < a; ++b)
      if ((a - 1) / 3 != (b - 1) / 3) literal::Link(graph, a, b);
  return graph;
}

TEST(ThreadsUndirectedSearch, StopsInsideTheHardestNode) {
  std::thread watcher([] {
    while (Read_state_report() !=
           "__________________\n Locating cliques:\n 90 of 90 nodes to do (0.00% done)\n")
      std::this_thread::yield();
    Stop_process();
  });
  try {
    Cliques_of(Endless());
    ADD_FAILURE() << "the search ended by itself";
  } catch (const std::logic_error& stop) {
    EXPECT_EQ(typeid(stop), typeid(std::logic_error));
    EXPECT_STREQ(stop.what(), "Process stopped by user.\n");
  }
  watcher.join();
  Reset_stop_process();
  EXPECT_EQ(Read_state_report(), " Process stopped by user.\n");
}

}  // namespace
}  // namespace gns
