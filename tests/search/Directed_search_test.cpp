#include "search/Directed_search.h"

#include <gtest/gtest.h>

#include <bit>
#include <set>
#include <stdexcept>
#include <string>
#include <vector>

#include "Literal_directed_search.h"
#include "Random_graphs.h"
#include "control/Clique_find_ext_cont.h"
#include "graph/Link_conversion.h"

namespace gns {
namespace {

using literal::Random;
using literal::Set;
using Pairs = std::set<Index_pair>;

Dir_vertex_map Map_of(const Pairs& links, Node_index node_count) {
  Dir_vertex_map map;
  Dir_vtx_map_from_link_map(
      map, Index_links(std::vector<Index_pair>(links.begin(), links.end()), {}, node_count));
  return map;
}

std::vector<Set> As_sets(const Clique_vector& cliques) {
  std::vector<Set> sets;
  for (std::size_t i = 0; i < cliques.size(); ++i) sets.push_back(literal::Members(cliques[i]));
  return sets;
}

std::vector<Set> Found(const Dir_vertex_map& map) {
  Clique_vector cliques;
  Overlap_matrix matrix;
  Clique_find_dir_ec(cliques, matrix, map);
  return As_sets(cliques);
}

void Expect_like_literal_walk(const Pairs& links, Node_index node_count) {
  const Dir_vertex_map map = Map_of(links, node_count);
  std::string text;
  for (const auto& [from, to] : links)
    text += std::to_string(from) + ">" + std::to_string(to) + " ";
  ASSERT_EQ(Found(map), literal::Directed_search::Cliques(map)) << text;
}

/// Links a pair one way or the other, or both ways in so many per cent of the cases.
void Link(Pairs& links, Random& random, Node_index a, Node_index b, std::uint32_t mutual) {
  const bool both = random.Chance(mutual);
  const bool ahead = random.Chance(50);
  if (both || ahead) links.insert({a, b});
  if (both || !ahead) links.insert({b, a});
}

struct Family {
  const char* name;
  std::uint32_t linked;  ///< per cent of the pairs
  std::uint32_t mutual;  ///< per cent of those
  bool ring;             ///< node 1 leads to 2, 2 to 3 and so on, the last to 1, all one-way
  bool large;            ///< the literal walk ends on twelve nodes too

  [[nodiscard]] Pairs Links(Random& random, Node_index node_count) const {
    Pairs links;
    for (Node_index a = 1; a <= node_count; ++a)
      for (Node_index b = a + 1; b <= node_count; ++b)
        if (ring && b == a + 1)
          links.insert({a, b});
        else if (ring && a == 1 && b == node_count)
          links.insert({b, a});
        else if (random.Chance(linked))
          Link(links, random, a, b, mutual);
    return links;
  }
};

const Family families[] = {
    {"sparse", 30, 20, false, true},
    {"half", 50, 30, false, true},
    {"dense", 80, 30, false, false},
    {"dense, mostly mutual", 90, 70, false, false},
    {"tournament", 100, 0, false, true},
    {"complete", 100, 50, false, false},
    {"ring in sparse", 50, 50, true, true},
    {"ring in mutual", 100, 95, true, false},
    {"ring in complete", 100, 60, true, false},
};

TEST(DirectedSearch, EqualsLiteralWalkOnAllGraphsOfFourNodes) {
  const Index_pair pairs[] = {{1, 2}, {1, 3}, {1, 4}, {2, 3}, {2, 4}, {3, 4}};
  for (unsigned code = 0; code < 1U << 12; ++code) {
    Pairs links;
    for (unsigned i = 0; i < 6; ++i) {
      if ((code >> 2 * i & 1) != 0) links.insert(pairs[i]);
      if ((code >> 2 * i & 2) != 0) links.insert({pairs[i].second, pairs[i].first});
    }
    Expect_like_literal_walk(links, 4);
    if (HasFatalFailure()) return;
  }
}

TEST(DirectedSearch, EqualsLiteralWalkOnRandomGraphs) {
  Random random(1);
  for (const Family& family : families) {
    SCOPED_TRACE(family.name);
    for (const Node_index node_count : {3U, 4U, 5U, 6U, 7U, 8U, 9U, 12U}) {
      if (node_count == 12 && !family.large) continue;
      for (int i = node_count < 8 ? 200 : 50; i > 0; --i) {
        Expect_like_literal_walk(family.Links(random, node_count), node_count);
        if (HasFatalFailure()) return;
      }
    }
  }
}

/// Nodes that are linked to all nodes of a second group, in which few links are: so many that rows
/// of bits are one word, two and more, full and one bit longer.
TEST(DirectedSearch, EqualsLiteralWalkOnLongBitRows) {
  Random random(2);
  for (const Node_index group : {63U, 64U, 128U, 150U}) {
    Pairs links;
    for (Node_index i = 0; i < 4 * group; ++i) {
      const Set pair = random.Nodes(group, 2);
      Link(links, random, *pair.begin(), *pair.rbegin(), 33);
    }
    for (Node_index node = group + 1; node <= group + 12; ++node)
      for (Node_index other = 1; other <= group; ++other) Link(links, random, node, other, 33);
    Expect_like_literal_walk(links, group + 12);
  }
}

/// Whether nodes (bits) can be put in a sequence in which each has a link to all behind it.
bool Is_directed_clique(unsigned nodes, const Pairs& links) {
  if (nodes == 0) return true;
  for (Node_index first = 1; nodes >> first != 0; ++first) {
    bool leads = (nodes >> first & 1) != 0;
    for (Node_index other = 1; nodes >> other != 0; ++other)
      if (other != first && (nodes >> other & 1) != 0 && !links.contains({first, other}))
        leads = false;
    if (leads) return Is_directed_clique(nodes & ~(1U << first), links);
  }
  return false;
}

std::set<Set> Cliques_by_definition(const Pairs& links, Node_index node_count) {
  std::set<Set> cliques;
  for (unsigned nodes = 0; nodes < 2U << node_count; nodes += 2) {
    if (std::popcount(nodes) < 3 || !Is_directed_clique(nodes, links)) continue;
    bool maximal = true;
    Set members;
    for (Node_index node = 1; node <= node_count; ++node) {
      const unsigned bit = 1U << node;
      if ((nodes & bit) != 0)
        members.insert(node);
      else if (Is_directed_clique(nodes | bit, links))
        maximal = false;
    }
    if (maximal) cliques.insert(members);
  }
  return cliques;
}

TEST(DirectedSearch, FindsAllSetsThatCanBeOrdered) {
  Random random(3);
  for (const Family& family : families) {
    SCOPED_TRACE(family.name);
    for (int i = 0; i < 40; ++i) {
      const Node_index node_count = random.Between(6, 10);
      const Pairs links = family.Links(random, node_count);
      const std::vector<Set> found = Found(Map_of(links, node_count));
      const std::set<Set> sets(found.begin(), found.end());
      EXPECT_EQ(sets.size(), found.size());
      ASSERT_EQ(sets, Cliques_by_definition(links, node_count));
    }
  }
}

TEST(DirectedSearch, KnownGraphs) {
  struct Case {
    Pairs links;
    std::vector<Set> cliques;
  };
  for (const Case& c : std::vector<Case>{
           {{{1, 2}, {2, 1}}, {}},
           {{{1, 2}, {2, 3}, {3, 1}}, {}},
           {{{1, 2}, {2, 3}, {1, 3}}, {{1, 2, 3}}},
           {{{1, 2}, {2, 1}, {2, 3}, {3, 2}, {1, 3}, {3, 1}}, {{1, 2, 3}}},
           {{{1, 2}, {2, 3}, {1, 3}, {3, 4}, {2, 4}}, {{1, 2, 3}, {2, 3, 4}}},
           {{{1, 2}, {2, 3}, {1, 3}, {3, 4}, {2, 4}, {1, 4}}, {{1, 2, 3, 4}}},
           // A cycle that leads to a node; what stands in front of the first node comes first.
           {{{1, 2}, {2, 3}, {3, 1}, {1, 4}, {2, 4}, {3, 4}}, {{1, 3, 4}, {1, 2, 4}, {2, 3, 4}}},
       })
    EXPECT_EQ(Found(Map_of(c.links, 4)), c.cliques);
  EXPECT_EQ(Found(Dir_vertex_map()), std::vector<Set>());
  EXPECT_EQ(Read_state_report(),
            "_____________________________________\n"
            " Altogether 0 directed cliques found.\n");
}

TEST(DirectedSearch, StopsInsideANode) {
  const Dir_vertex_map map = Map_of({{1, 2}, {2, 3}, {1, 3}}, 3);
  Directed_node_search search(map, {1, 2, 3});
  Clique_vector cliques;
  Attempt attempt;
  Stop_process();
  EXPECT_THROW(search.Find(1, attempt, cliques), std::logic_error);
  Reset_stop_process();
}

/// The clock goes on by a second with each reading.
class TimedDirectedSearch : public testing::Test {
 protected:
  std::vector<Set> Found_within(double seconds, const Dir_vertex_map& map) {
    const Time_limit limit{seconds, [this] { return time_ += 1.0; }};
    Clique_vector cliques;
    Overlap_matrix matrix;
    Clique_find_dir_time_ec(cliques, matrix, map, left_, limit);
    return As_sets(cliques);
  }

  Left_map left_;

 private:
  double time_ = 0.0;
};

TEST_F(TimedDirectedSearch, EqualsTheExactOneIfNothingRunsOver) {
  Random random(4);
  for (const Family& family : families) {
    const Dir_vertex_map map = Map_of(family.Links(random, 15), 15);
    const std::vector<Set> found = Found_within(1e9, map);
    EXPECT_TRUE(Read_state_report().ends_with(
        std::to_string(found.size()) + " directed cliques found.\nno approximation was needed.\n"));
    EXPECT_EQ(found, Found(map));
    EXPECT_TRUE(left_.empty());
  }
}

/// Nodes finish out of order here, and some are given up.
TEST_F(TimedDirectedSearch, YieldsMaximalCliquesWhateverRunsOver) {
  Random random(5);
  int retried = 0;
  int given_up = 0;
  for (const Family& family : families) {
    SCOPED_TRACE(family.name);
    for (int i = 0; i < 30; ++i) {
      const Pairs links = family.Links(random, 10);
      const Dir_vertex_map map = Map_of(links, 10);
      const std::set<Set> all = Cliques_by_definition(links, 10);
      const std::vector<Set> found = Found_within(random.Between(1, 8), map);
      const std::set<Set> sets(found.begin(), found.end());
      EXPECT_EQ(sets.size(), found.size());
      EXPECT_TRUE(std::ranges::includes(all, sets));
      if (!left_.empty()) {
        ++given_up;
        continue;
      }
      EXPECT_EQ(sets, all);
      if (found != Found(map)) ++retried;
    }
  }
  EXPECT_GT(retried, 10);
  EXPECT_GT(given_up, 10);
}

TEST_F(TimedDirectedSearch, NeverRunsOverWhereCliquesHaveThreeNodes) {
  const Pairs links = {{1, 2}, {1, 3}, {3, 2}, {1, 4}, {5, 1}, {4, 5}, {2, 4}};
  EXPECT_EQ(Found_within(0.5, Map_of(links, 5)).size(), 2U);
  EXPECT_TRUE(left_.empty());
}

}  // namespace
}  // namespace gns
