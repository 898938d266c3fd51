#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <numeric>
#include <set>
#include <vector>

#include "Literal_search.h"
#include "Processor_level_turn.h"
#include "Random_graphs.h"
#include "search/Directed_search.h"
#include "search/Node_work.h"
#include "search/Range_search.h"
#include "search/Undirected_search.h"

namespace gns {
namespace {

using literal::Random;
using literal::Set;

/// A search of a graph of either kind, as often as it is wanted.
class Any_search {
 public:
  Any_search(bool directed, const literal::Graph& graph, const std::set<Index_pair>& links)
      : directed_(directed) {
    if (directed) {
      dir_vertices_ = literal::Dir_vertex_map_of(links, static_cast<Node_index>(graph.size()));
      Sort_dir_vtx_map(order, dir_vertices_, "Neighs");
      graph_ = std::make_unique<Search_graph>(dir_vertices_, order);
    } else {
      vertices_ = literal::Vertex_map_of(graph);
      Sort_Vtx_map(order, vertices_);
      graph_ = std::make_unique<Search_graph>(vertices_.Rows(), order);
    }
  }

  [[nodiscard]] std::unique_ptr<Sliced_node_search> Make() const {
    if (directed_) return std::make_unique<Directed_node_search>(*graph_);
    return std::make_unique<Undirected_node_search>(*graph_);
  }

  [[nodiscard]] std::vector<Set> Whole() const {
    Clique_vector cliques;
    const std::unique_ptr<Sliced_node_search> search = Make();
    Range_search(*search, order).Find({0, order.size()}, cliques);
    return literal::Sets_of(cliques);
  }

  /// With each node cut into so many slices, each by a search of its own; how many of them have
  /// found something goes to `busy`.
  [[nodiscard]] std::vector<Set> Sliced(std::uint64_t slices, std::size_t& busy) const {
    std::vector<std::unique_ptr<Sliced_node_search>> searches;
    std::vector<Range_search> ranges;
    for (std::uint64_t i = 0; i < slices; ++i)
      ranges.emplace_back(*searches.emplace_back(Make()), order);
    Clique_vector cliques;
    for (std::uint64_t place = 0; place < order.size(); ++place) {
      std::vector<Clique_vector> found(slices);
      std::vector<const Clique_vector*> all;
      for (std::uint64_t i = 0; i < slices; ++i) {
        ranges[i].Find({place, place + 1, {i, slices}}, found[i]);
        busy += found[i].empty() ? 0 : 1;
        all.push_back(&found[i]);
      }
      ranges[place % slices].Join({place, place + 1, {0, slices}}, all, cliques);
    }
    return literal::Sets_of(cliques);
  }

  Node_order order;

 private:
  bool directed_;
  Vertex_map vertices_;
  Dir_vertex_map dir_vertices_;
  std::unique_ptr<Search_graph> graph_;
};

class EachSlicedSearch : public ::testing::TestWithParam<bool> {
 protected:
  static void Expect_whole(const literal::Graph& graph, const std::set<Index_pair>& links,
                           std::size_t& busy) {
    const Any_search search(GetParam(), graph, links);
    const std::vector<Set> whole = search.Whole();
    for (std::uint64_t slices = 2; slices <= 7; ++slices)
      ASSERT_EQ(search.Sliced(slices, busy), whole) << slices;
  }
};

INSTANTIATE_TEST_SUITE_P(SlicedWalk, EachSlicedSearch, ::testing::Bool());

TEST_P(EachSlicedSearch, FindsTheSameInTheSameOrder) {
  std::size_t busy = 0;
  const std::uint32_t samples = literal::Samples(200);
  for (std::uint32_t seed = 0; seed < samples; ++seed) {
    const Processor_level_turn level(seed);
    const literal::Graph graph = literal::Random_graph(seed);
    Random random(seed);
    const std::set<Index_pair> links = literal::Directed(random, graph, random.Below(101));
    Expect_whole(graph, links, busy);
    if (HasFatalFailure()) FAIL() << seed;
  }
  EXPECT_GT(busy, 20 * samples);
}

/// So few branches at the root, and so much below, that levels are cut far down.
TEST_P(EachSlicedSearch, FindsTheSameInDenseGraphs) {
  std::size_t busy = 0;
  for (std::uint32_t seed = 0; seed < literal::Samples(40); ++seed) {
    Random random(seed);
    const literal::Graph graph = literal::Uniform(random, random.Between(15, 30), 85);
    Expect_whole(graph, literal::Directed(random, graph, random.Between(30, 100)), busy);
    if (HasFatalFailure()) FAIL() << seed;
  }
  EXPECT_GT(busy, literal::Samples(40) * 60);
}

/// Rows of one word, two and three.
TEST_P(EachSlicedSearch, FindsTheSameOnLongBitRows) {
  Random random(2);
  std::size_t busy = 0;
  for (const Node_index neighbours : {63U, 64U, 140U}) {
    const literal::Graph graph = literal::With_hot_node(random, neighbours, 20);
    Expect_whole(graph, literal::Directed(random, graph, 33), busy);
    if (HasFatalFailure()) FAIL() << neighbours;
  }
}

/// A slice is of no use if most of the work is done by the others. Where a neighbour is linked to
/// all the others, the walk has a single first branch.
TEST(SlicedWalk, HasSlicesOfAboutTheSameWork) {
  constexpr std::uint64_t slices = 8;
  for (const bool has_one_branch : {false, true}) {
    Random random(1);
    literal::Graph graph = literal::With_hot_node(random, 150, 35);
    for (Node_index neigh = 3; has_one_branch && neigh <= 151; ++neigh)
      literal::Link_all(graph, {2, neigh});
    const Any_search search(false, graph, {});
    const auto hot = static_cast<std::uint64_t>(std::ranges::find(search.order, Node_index{1}) -
                                                search.order.begin());
    std::vector<std::size_t> counts;
    for (std::uint64_t i = 0; i < slices; ++i) {
      Clique_vector cliques;
      const std::unique_ptr<Sliced_node_search> fresh = search.Make();
      Range_search(*fresh, search.order).Find({hot, hot + 1, {i, slices}}, cliques);
      counts.push_back(cliques.size());
    }
    const std::size_t all = std::accumulate(counts.begin(), counts.end(), std::size_t{0});
    EXPECT_GT(all, 1000U);
    EXPECT_LT(std::ranges::max(counts), 2 * all / slices) << has_one_branch;
  }
}

/// Ranges stand behind each other, are never more than asked for, and share the work.
TEST(NodeWork, IsCutIntoRangesAndSlices) {
  std::size_t sliced = 0;
  for (std::uint32_t seed = 0; seed < 200; ++seed) {
    SCOPED_TRACE(seed);
    Random random(seed);
    const Vertex_map vertices = literal::Vertex_map_of(
        seed % 2 == 0 ? literal::Random_graph(seed)
                      : literal::With_hot_node(random, random.Between(5, 60), random.Below(40)));
    Node_order order;
    Sort_Vtx_map(order, vertices);
    const Search_graph graph(vertices.Rows(), order);
    const Node_work nodes(graph, order);
    const std::uint64_t all = nodes.Of_range(0, order.size());
    for (const std::size_t count : {1U, 2U, 7U, 64U, 1000U}) {
      const std::vector<Search_range> ranges = nodes.Ranges(count);
      EXPECT_LE(ranges.size(), count);
      std::uint64_t place = 0;
      std::uint64_t slice = 0;
      std::uint64_t work = 0;
      for (const Search_range& range : ranges) {
        ASSERT_EQ(range.first, place);
        ASSERT_EQ(range.slice.index, slice);
        ASSERT_LT(slice, range.slice.count);
        ASSERT_GT(range.last, range.first);
        if (!range.slice.Is_whole()) {
          ASSERT_EQ(range.last, range.first + 1);
        }
        slice = (slice + 1) % range.slice.count;
        if (slice == 0) place = range.last;
        work += nodes.Of(range);
        EXPECT_LE(nodes.Of(range), 4 * (all / count + 1));
        sliced += range.slice.Is_whole() ? 0 : 1;
      }
      EXPECT_EQ(place, order.size());
      EXPECT_EQ(slice, 0U);
      EXPECT_EQ(work, all);
    }
  }
  EXPECT_GT(sliced, 1000U);
}

}  // namespace
}  // namespace gns
