#include "search/Worker_search.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <atomic>
#include <stdexcept>
#include <string>
#include <vector>

#include "Literal_search.h"
#include "Random_graphs.h"
#include "Thrown_message.h"
#include "control/Run_control.h"
#include "search/Clique_find.h"
#include "search/Range_search.h"
#include "search/Undirected_search.h"

namespace gns {
namespace {

using literal::Set;

/// The cliques that some workers find, in their order.
std::vector<Set> Found(unsigned workers, const literal::Graph& graph,
                       const std::set<Index_pair>* directed_links) {
  external_control::Run_control run;
  const external_control::Control_in_use in_use(run);
  run.workers = workers;
  const auto node_count = static_cast<Node_index>(graph.size());
  Clique_vector cliques;
  Overlap_matrix overlaps;
  std::uint32_t exact_count = 0;
  bool approximation_needed = true;
  const bool directed = directed_links != nullptr;
  Find_cliques_ec(
      nullptr, directed, cliques, overlaps,
      directed ? literal::Dir_vertex_map_of(*directed_links, node_count) : Dir_vertex_map(),
      directed ? Vertex_map() : literal::Vertex_map_of(graph), exact_count, approximation_needed);
  EXPECT_EQ(exact_count, cliques.size());
  EXPECT_FALSE(approximation_needed);
  EXPECT_EQ(overlaps.size(), cliques.size());
  EXPECT_EQ(run.progress.cliques_found, cliques.size());
  EXPECT_EQ(run.progress.nodes_left, 0U);
  EXPECT_EQ(run.state_report.Text().substr(run.state_report.Text().find('\n') + 1),
            " Altogether " + std::to_string(cliques.size()) + (directed ? " directed" : "") +
                " cliques found.\n");
  return literal::Sets_of(cliques);
}

/// Where one worker, which is held against the plain search, finds them.
TEST(ThreadsWorkerSearch, FindsTheSameInTheSameOrder) {
  for (std::uint32_t seed = 0; seed < 60; ++seed) {
    literal::Random random(seed);
    const literal::Graph graph = seed % 2 == 0
                                     ? literal::Clique_rich(random, random.Between(3, 60))
                                     : literal::Uniform(random, random.Between(1, 40), 50);
    const std::set<Index_pair> links = literal::Directed(random, graph, random.Below(101));
    const std::set<Index_pair>* const kind = seed % 3 == 0 ? &links : nullptr;
    const std::vector<Set> expected = Found(1, graph, kind);
    for (const unsigned workers : {2U, 3U, 16U})
      EXPECT_EQ(Found(workers, graph, kind), expected) << seed << " " << workers;
  }
}

/// Whoever brings the last slice of a node joins them.
TEST(ThreadsWorkerSearch, ShareTheSlicesOfAHotNode) {
  for (std::uint32_t seed = 0; seed < 4; ++seed) {
    literal::Random random(seed);
    const literal::Graph graph = literal::With_hot_node(random, 90, 25);
    const std::set<Index_pair> links = literal::Directed(random, graph, 50);
    const Vertex_map vertices = literal::Vertex_map_of(graph);
    Node_order order;
    Sort_Vtx_map(order, vertices);
    const Search_graph searched(vertices.Rows(), order);
    const Node_work nodes(searched, order);
    for (const std::set<Index_pair>* const kind : {&links, decltype(&links){}}) {
      const std::vector<Set> expected = Found(1, graph, kind);
      for (const unsigned workers : {2U, 4U, 16U}) {
        EXPECT_TRUE(std::ranges::any_of(nodes.Ranges(std::size_t{64} * workers),
                                        [](auto& range) { return range.slice.count > 8; }));
        EXPECT_EQ(Found(workers, graph, kind), expected) << seed << " " << workers;
      }
    }
  }
}

/// Ranges that leave some out, as parts on other machines do.
TEST(ThreadsWorkerSearch, RangesStandByThemselves) {
  literal::Random random(1);
  const Vertex_map vertices = literal::Vertex_map_of(literal::Uniform(random, 60, 50));
  Node_order order;
  Sort_Vtx_map(order, vertices);
  const Search_graph graph(vertices.Rows(), order);
  const std::vector<Search_range> ranges = Node_work(graph, order).Ranges(7);
  ASSERT_GE(ranges.size(), 6U);
  Clique_vector all;
  Clique_vector joined;
  Undirected_node_search search(graph);
  Range_search(search, order).Find({0, order.size()}, all);
  for (const Search_range& range : ranges) {
    Undirected_node_search fresh(graph);
    Range_search(fresh, order).Find(range, joined);
  }
  EXPECT_EQ(literal::Sets_of(joined), literal::Sets_of(all));
}

/// A search that finds one clique at a node, and at one of them fails or asks for a stop.
class Failing_search : public Sliced_node_search {
 public:
  Failing_search(Node_index bad, bool stops) : bad_(bad), stops_(stops) {}
  void Find(Node_index node, Attempt& /*attempt*/, Clique_vector& cliques) override {
    cliques.push_back(std::vector<Node_index>{node, node + 1, node + 2});
    if (node != bad_) return;
    if (!stops_) throw std::runtime_error("bad node");
    external_control::This_control().stop = true;
  }
  void Find_slice(Node_index /*node*/, const Walk_slice& /*slice*/,
                  Clique_vector& /*cliques*/) override {
    throw std::runtime_error("no node has the work of several ranges");
  }
  void Join(Node_index node, std::span<const Clique_vector* const> /*slices*/,
            Clique_vector& cliques) override {
    Find_slice(node, {}, cliques);
  }
  void Finish(Node_index /*node*/) override {}

 private:
  Node_index bad_;
  bool stops_;
};

/// What is there then are the first cliques, with no gap.
TEST(ThreadsWorkerSearch, AFailureAndAStopLeaveTheFirstCliques) {
  constexpr Node_index node_count = 3000;
  constexpr Node_index bad = 2005;  // in the middle of a range
  const Adjacency no_links(node_count, [](auto) {});
  Node_order order(node_count);
  for (Node_index node = 1; node <= node_count; ++node) order[node - 1] = node;
  for (const bool stops : {false, true}) {
    external_control::Run_control run;
    const external_control::Control_in_use in_use(run);
    run.workers = 3;
    Clique_vector cliques;
    const Search_graph graph(no_links, order);
    const auto search = [&] {
      Search_on_workers([&] { return std::make_unique<Failing_search>(bad, stops); },
                        Node_work(graph, order), {"T", "", "sets", ""}, cliques);
    };
    EXPECT_EQ(Thrown_message<std::exception>(search),
              stops ? "Process stopped by user.\n" : "bad node");
    ASSERT_LT(cliques.size(), bad);
    for (std::size_t i = 0; i < cliques.size(); ++i) EXPECT_EQ(cliques[i].front(), i + 1);
  }
}

}  // namespace
}  // namespace gns
