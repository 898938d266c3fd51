#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <stdexcept>
#include <string>
#include <thread>
#include <vector>

#include "Literal_directed_search.h"
#include "Literal_search.h"
#include "Processor_level_turn.h"
#include "Random_graphs.h"
#include "control/Clique_find_ext_cont.h"
#include "search/Clique_find.h"
#include "search/Directed_search.h"
#include "search/Undirected_search.h"

namespace gns {
namespace {

using literal::Graph;
using literal::Random;
using literal::Set;
using Pairs = std::set<Index_pair>;

/// A graph for both kinds of search.
struct Sample {
  Graph graph;
  Pairs links;
  Vertex_map vertices = literal::Vertex_map_of(graph);
  Dir_vertex_map dir_vertices =
      literal::Dir_vertex_map_of(links, static_cast<Node_index>(graph.size()));
};

/// Links in any directions, in every third graph a ring of one-way links. The literal walk is so
/// slow that dense graphs are small.
Sample Small_sample(std::uint32_t seed) {
  Random random(seed);
  const std::uint32_t percent = random.Between(30, 100);
  const Node_index node_count = random.Between(3, percent > 50 ? 9 : 12);
  Graph graph = literal::Uniform(random, node_count, percent);
  const bool ring = seed % 3 == 0;
  for (Node_index node = 1; ring && node <= node_count; ++node)
    literal::Link_all(graph, {node, node % node_count + 1});
  Pairs links = literal::Directed(random, graph, random.Below(101));
  for (Node_index node = 1; ring && node <= node_count; ++node) {
    links.insert({node, node % node_count + 1});
    links.erase({node % node_count + 1, node});
  }
  return {graph, links};
}

Sample Sample_for(bool directed, std::uint32_t seed) {
  if (directed) return Small_sample(seed);
  return {literal::Random_graph(seed), {}};
}

struct Result {
  std::vector<Set> cliques;
  literal::Matrix matrix;
  Left_map left;

  Result(bool directed, const Sample& sample, const Time_limit* limit = nullptr) {
    Clique_vector rows;
    Overlap_matrix overlaps;
    if (limit == nullptr && directed)
      Clique_find_dir_ec(rows, overlaps, sample.dir_vertices);
    else if (limit == nullptr)
      Clique_find_ec(rows, overlaps, sample.vertices);
    else if (directed)
      Clique_find_dir_time_ec(rows, overlaps, sample.dir_vertices, left, *limit);
    else
      Clique_find_part_time_ec(rows, overlaps, sample.vertices, left, *limit);
    cliques = literal::Sets_of(rows);
    for (Clique_index i = 0; i < overlaps.size(); ++i) {
      const auto row = overlaps.Row(i);
      matrix.emplace_back(row.begin(), row.end());
    }
  }
};

class EachSearch : public ::testing::TestWithParam<bool> {
 protected:
  static void Expect_like_literal(const Sample& sample) {
    const bool directed = GetParam();
    const Result exact(directed, sample);
    const std::string line = " Altogether " + std::to_string(exact.cliques.size()) +
                             (directed ? " directed" : "") + " cliques found.\n";
    const std::string report = std::string(line.size() - 1, '_') + "\n" + line;
    ASSERT_EQ(Read_state_report(), report);
    ASSERT_EQ(exact.cliques, directed ? literal::Directed_search::Cliques(sample.dir_vertices)
                                      : literal::Cliques_of(sample.graph));
    ASSERT_EQ(exact.matrix, literal::Shared_nodes(exact.cliques));

    const Time_limit enough = {0.0, [] { return 5.0; }};
    const Result timed(directed, sample, &enough);
    ASSERT_EQ(Read_state_report(), report + (directed ? "no approximation was needed.\n"
                                                      : " no approximation was needed\n"));
    ASSERT_EQ(timed.cliques, exact.cliques);
    ASSERT_EQ(timed.matrix, exact.matrix);
    ASSERT_TRUE(timed.left.empty());
  }
};

INSTANTIATE_TEST_SUITE_P(CliqueSearch, EachSearch, ::testing::Bool());

TEST_P(EachSearch, EqualsLiteralOneOnRandomGraphs) {
  for (std::uint32_t seed = 0; seed < literal::Samples(2500); ++seed) {
    const Processor_level_turn level(seed / 3);
    Expect_like_literal(Sample_for(GetParam(), seed));
    if (HasFatalFailure()) FAIL() << seed;
  }
}

/// Rows of one word, two and three, full and one bit longer.
TEST_P(EachSearch, EqualsLiteralOneOnLongBitRows) {
  Random random(2);
  for (const Node_index side : {63U, 64U, 128U, 150U}) {
    const Graph graph = literal::Two_sides(random, side);
    const Sample sample = {graph, literal::Directed(random, graph, 33)};
    for (const std::uint32_t turn : {0U, 1U, 2U}) {
      const Processor_level_turn level(turn);
      Expect_like_literal(sample);
      if (HasFatalFailure()) FAIL() << side;
    }
  }
}

/// Whether nodes can be put in a sequence in which each has a link to all behind it.
bool Is_clique(Set nodes, const Pairs& links) {
  const auto leads = [&](Node_index node) {
    return std::ranges::all_of(nodes, [&](Node_index other) {
      return other == node || links.contains({node, other});
    });
  };
  while (!nodes.empty()) {
    const auto first = std::ranges::find_if(nodes, leads);
    if (first == nodes.end()) return false;
    nodes.erase(first);
  }
  return true;
}

TEST_P(EachSearch, FindsAllCliquesByDefinition) {
  for (std::uint32_t seed = 0; seed < 200; ++seed) {
    Sample sample = Small_sample(seed);
    Random random(seed);
    if (!GetParam()) sample.links = literal::Directed(random, sample.graph, 100);
    std::vector<Set> cliques;
    for (unsigned bits = 0; bits < 1U << sample.graph.size(); ++bits) {
      Set set;
      for (const auto& [node, neighs] : sample.graph)
        if ((bits >> (node - 1) & 1) != 0) set.insert(node);
      if (set.size() < 3 || !Is_clique(set, sample.links)) continue;
      std::erase_if(cliques, [&](const Set& part) { return std::ranges::includes(set, part); });
      cliques.push_back(set);
    }
    std::vector<Set> found = Result(GetParam(), sample).cliques;
    std::ranges::sort(found);
    std::ranges::sort(cliques);
    ASSERT_EQ(found, cliques) << seed;
  }
}

/// A clock that goes beyond the limit at one reading in so many per cent, the same ones each time.
Time_limit Jumping_clock(std::uint32_t seed, std::uint32_t percent) {
  return {0.5, [random = Random(seed), time = 0.0, percent]() mutable {
            return time += random.Chance(percent) ? 1.0 : 0.0;
          }};
}

/// What is recorded beside a left map: maximal cliques, each once; what is missing lies inside the
/// left map. Each node of it is in a clique of four there, since no smaller one can run over.
void Expect_exact_part(const std::vector<Set>& all, const Graph& graph, const Result& timed) {
  const std::set<Set> recorded(timed.cliques.begin(), timed.cliques.end());
  ASSERT_EQ(recorded.size(), timed.cliques.size());
  const std::set<Set> maximal(all.begin(), all.end());
  ASSERT_TRUE(std::ranges::includes(maximal, recorded));
  const Set left(timed.left.nodes.begin(), timed.left.nodes.end());
  Set hard;
  for (const Set& clique : all) {
    const Set inside = literal::Common(clique, left);
    ASSERT_TRUE(recorded.contains(clique) || inside == clique);
    if (inside.size() > 3) hard.insert(inside.begin(), inside.end());
  }
  ASSERT_EQ(left, hard);
  std::vector<Set> rows;
  for (const Node_index node : timed.left.nodes)
    rows.push_back(literal::Common(graph.at(node), left));
  ASSERT_EQ(literal::Sets_of(timed.left.neighs), rows);
}

TEST_P(EachSearch, StaysExactWhateverTheClockDoes) {
  std::size_t with_left = 0;
  std::size_t retried = 0;
  std::size_t approximated = 0;
  for (std::uint32_t seed = 0; seed < literal::Samples(3000); ++seed) {
    SCOPED_TRACE(seed);
    const Sample sample = Sample_for(GetParam(), seed);
    const std::uint32_t percent = std::vector<std::uint32_t>{2, 10, 40, 100}[seed % 4];
    const Result exact(GetParam(), sample);
    const Time_limit limit = Jumping_clock(seed, percent);
    const Result timed(GetParam(), sample, &limit);
    Expect_exact_part(exact.cliques, sample.graph, timed);
    if (HasFatalFailure()) return;
    with_left += timed.left.empty() ? 0 : 1;
    retried += timed.left.empty() && timed.cliques != exact.cliques ? 1 : 0;

    Clique_vector rows;
    Overlap_matrix matrix;
    std::uint32_t exact_clique_count = 0;
    bool approximation_needed = true;
    const Time_limit again = Jumping_clock(seed, percent);
    Find_cliques_ec(&again, GetParam(), rows, matrix, sample.dir_vertices, sample.vertices,
                    exact_clique_count, approximation_needed);
    const literal::Covered_cliques covered(timed.left, timed.cliques);
    ASSERT_EQ(literal::Sets_of(rows), covered.cliques);
    ASSERT_EQ(exact_clique_count, covered.exact_clique_count);
    ASSERT_EQ(approximation_needed, !covered.core.empty());
    ASSERT_EQ(matrix.size(), rows.size());
    approximated += approximation_needed ? 1 : 0;
  }
  EXPECT_GT(with_left, literal::Samples(300));
  EXPECT_GT(retried, literal::Samples(100));
  EXPECT_GT(approximated, literal::Samples(100));
}

/// The exact searches poll for their nodes alone, those with a limit once more behind them. What
/// was recorded until the stop and the matrix agree.
TEST_P(EachSearch, PollsAndAgreesWhenStopped) {
  Stop_process();
  const Time_limit enough = {1.0};
  EXPECT_NO_THROW(Result(GetParam(), {}));
  EXPECT_THROW(Result(GetParam(), {}, &enough), std::logic_error);
  Clique_vector cliques = literal::Rows_of({{1, 2, 3}, {2, 3, 4}});
  const Clique_vector others = cliques;
  Overlap_matrix matrix(others);
  Graph triangle = {{1, {2, 3}}, {2, {1, 3}}, {3, {1, 2}}};
  EXPECT_THROW(Clique_find_ec(cliques, matrix, literal::Vertex_map_of(triangle)), std::logic_error);
  EXPECT_EQ(matrix.size(), cliques.size());
  Reset_stop_process();
}

/// Three nodes and a candidate are enough to ask for the time.
TEST_P(EachSearch, ACliqueOfFourCanRunOver) {
  Random random(1);
  for (const Node_index nodes : {3U, 4U}) {
    const Graph graph = literal::Uniform(random, nodes, 100);
    const Sample sample = {graph, literal::Directed(random, graph, 100)};
    const Time_limit late = Jumping_clock(0, 100);
    const Result result(GetParam(), sample, &late);
    EXPECT_EQ(result.left.size(), nodes == 4 ? 4U : 0U);
  }
}

/// The cliques of the graph are so many that nobody can list them: 30 groups of three, linked to
/// all but their own group.
TEST(ThreadsCliqueSearch, StopInsideTheHardestNode) {
  Random random(1);
  Graph graph = literal::Uniform(random, 90, 0);
  for (Node_index a = 1; a <= 90; ++a)
    for (Node_index b = 1; b < a; ++b)
      if ((a - 1) / 3 != (b - 1) / 3) literal::Link_all(graph, {a, b});
  const Sample sample = {graph, literal::Directed(random, graph, 100)};
  for (const bool directed : {false, true}) {
    const std::string report = directed ? "_______________________\n Locating dir. cliques:\n"
                                        : "__________________\n Locating cliques:\n";
    std::thread watcher([&] {
      while (Read_state_report() != report + " 90 of 90 nodes to do (0.00% done)\n")
        std::this_thread::yield();
      Stop_process();
    });
    try {
      const Result result(directed, sample);
      ADD_FAILURE() << "the search ended by itself";
    } catch (const std::logic_error& stop) {
      EXPECT_STREQ(stop.what(), "Process stopped by user.\n");
    }
    watcher.join();
    Reset_stop_process();
    EXPECT_EQ(Read_state_report(), " Process stopped by user.\n");
  }
}

TEST(CliqueSearch, OfLargeCliquesLeavesOutTheSmallOnes) {
  for (std::uint32_t seed = 1; seed <= 400; ++seed) {
    SCOPED_TRACE(seed);
    const Sample sample = Sample_for(false, seed);
    std::vector<Set> large = Result(false, sample).cliques;
    for (const std::uint32_t least : {3U, 4U, 5U, 7U}) {
      std::erase_if(large, [&](const Set& clique) { return clique.size() < least; });
      Clique_vector found;
      Clique_find_of_size_ec(found, sample.vertices, least);
      EXPECT_EQ(literal::Sets_of(found), large);
    }
  }
}

}  // namespace
}  // namespace gns
