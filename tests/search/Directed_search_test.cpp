#include "search/Directed_search.h"

#include <gtest/gtest.h>

#include <random>
#include <set>
#include <stdexcept>
#include <string>
#include <vector>

#include "Literal_directed_search.h"
#include "control/Clique_find_ext_cont.h"
#include "graph/Link_conversion.h"

namespace gns {
namespace {

using Set = Literal_directed_search::Set;
using Pairs = std::set<Index_pair>;

Dir_vertex_map Map_of(const Pairs& links, Node_index node_count) {
  Dir_vertex_map map;
  Dir_vtx_map_from_link_map(
      map, Index_links(std::vector<Index_pair>(links.begin(), links.end()), {}, node_count));
  return map;
}

std::vector<Set> As_sets(const Clique_vector& cliques) {
  std::vector<Set> sets;
  for (std::size_t i = 0; i < cliques.size(); ++i)
    sets.emplace_back(cliques[i].begin(), cliques[i].end());
  return sets;
}

std::vector<Set> Found(const Dir_vertex_map& map) {
  Clique_vector cliques;
  Overlap_matrix matrix;
  Clique_find_dir_ec(cliques, matrix, map);
  return As_sets(cliques);
}

/// Whether nodes (bits) can be put in a sequence in which each has a link to all behind it.
bool Is_directed_clique(unsigned nodes, const Pairs& links) {
  if (nodes == 0) return true;
  for (Node_index first = 1; nodes >> first != 0; ++first) {
    if ((nodes >> first & 1) == 0) continue;
    bool leads = true;
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

struct Family {
  const char* name;
  double linked;  ///< probability of a pair to be linked
  double mutual;  ///< and then to be linked both ways
  bool ring;      ///< node 1 leads to 2, 2 to 3 and so on, the last to 1, all one-way
};

const Family families[] = {
    {"sparse", 0.3, 0.2, false},          {"half", 0.5, 0.3, false},
    {"dense", 0.8, 0.3, false},           {"dense, mostly mutual", 0.9, 0.7, false},
    {"tournament", 1.0, 0.0, false},      {"complete, half mutual", 1.0, 0.5, false},
    {"ring in sparse", 0.5, 0.5, true},   {"ring in mutual", 1.0, 0.95, true},
    {"ring in complete", 1.0, 0.6, true},
};

Pairs Random_links(const Family& family, Node_index node_count, std::mt19937& random) {
  std::bernoulli_distribution linked(family.linked);
  std::bernoulli_distribution mutual(family.mutual);
  std::bernoulli_distribution forward(0.5);
  Pairs links;
  for (Node_index a = 1; a <= node_count; ++a) {
    for (Node_index b = a + 1; b <= node_count; ++b) {
      const bool closes_ring = a == 1 && b == node_count;
      if (family.ring && (b == a + 1 || closes_ring)) {
        links.insert(closes_ring ? Index_pair{b, a} : Index_pair{a, b});
        continue;
      }
      if (!linked(random)) continue;
      const bool both = mutual(random);
      const bool ahead = forward(random);
      if (both || ahead) links.insert({a, b});
      if (both || !ahead) links.insert({b, a});
    }
  }
  return links;
}

void Expect_literal_order(const Pairs& links, Node_index node_count) {
  const Dir_vertex_map map = Map_of(links, node_count);
  ASSERT_EQ(Found(map), Literal_directed_search::Cliques(map)) << [&] {
    std::string text;
    for (const auto& [from, to] : links)
      text += std::to_string(from) + ">" + std::to_string(to) + " ";
    return text;
  }();
}

TEST(Directed_search, EqualsTheLiteralWalkOnAllGraphsOfFourNodes) {
  const Index_pair pairs[] = {{1, 2}, {1, 3}, {1, 4}, {2, 3}, {2, 4}, {3, 4}};
  for (unsigned code = 0; code < 1U << 12; ++code) {
    Pairs links;
    for (unsigned i = 0; i < 6; ++i) {
      if ((code >> 2 * i & 1) != 0) links.insert(pairs[i]);
      if ((code >> 2 * i & 2) != 0) links.insert({pairs[i].second, pairs[i].first});
    }
    Expect_literal_order(links, 4);
    if (HasFatalFailure()) return;
  }
}

TEST(Directed_search, EqualsTheLiteralWalkOnRandomGraphs) {
  std::mt19937 random(20240607);
  for (const Family& family : families) {
    SCOPED_TRACE(family.name);
    for (Node_index node_count = 3; node_count <= 9; ++node_count) {
      const int graphs = node_count < 8 ? 200 : 60;
      for (int i = 0; i < graphs; ++i) {
        Expect_literal_order(Random_links(family, node_count, random), node_count);
        if (HasFatalFailure()) return;
      }
    }
  }
}

TEST(Directed_search, EqualsTheLiteralWalkOnGraphsOfTwelveNodes) {
  std::mt19937 random(12);
  for (const Family& family : {families[0], families[1], families[4]}) {
    SCOPED_TRACE(family.name);
    for (int i = 0; i < 40; ++i) {
      Expect_literal_order(Random_links(family, 12, random), 12);
      if (HasFatalFailure()) return;
    }
  }
}

/// Nodes that are linked to all nodes of a second group, in which few links are: the second group
/// makes local graphs of more than one word per row, and of more than two.
TEST(Directed_search, EqualsTheLiteralWalkWhereNodesHaveManyNeighbours) {
  std::mt19937 random(99);
  for (const Node_index group : {63U, 64U, 128U, 150U}) {
    SCOPED_TRACE(group);
    std::uniform_int_distribution<Node_index> any(1, group);
    std::uniform_int_distribution<int> kind(1, 3);
    Pairs links;
    const auto link = [&](Node_index a, Node_index b) {
      const int directions = kind(random);
      if ((directions & 1) != 0) links.insert({a, b});
      if ((directions & 2) != 0) links.insert({b, a});
    };
    for (Node_index i = 0; i < 4 * group; ++i) {
      const Node_index a = any(random);
      const Node_index b = any(random);
      if (a != b) link(a, b);
    }
    const Node_index node_count = group + 12;
    for (Node_index node = group + 1; node <= node_count; ++node)
      for (Node_index other = 1; other <= group; ++other) link(node, other);
    Expect_literal_order(links, node_count);
  }
}

TEST(Directed_search, FindsTheSetsOfTheDefinition) {
  std::mt19937 random(7);
  for (const Family& family : families) {
    SCOPED_TRACE(family.name);
    for (int i = 0; i < 40; ++i) {
      const Node_index node_count = 6 + static_cast<Node_index>(i % 5);
      const Pairs links = Random_links(family, node_count, random);
      const std::vector<Set> found = Found(Map_of(links, node_count));
      const std::set<Set> sets(found.begin(), found.end());
      EXPECT_EQ(sets.size(), found.size());
      ASSERT_EQ(sets, Cliques_by_definition(links, node_count));
    }
  }
}

TEST(Directed_search, RecordsTheCliquesOfSmallGraphs) {
  struct Case {
    const char* name;
    Pairs links;
    Node_index node_count;
    std::vector<Set> cliques;
  };
  const Case cases[] = {
      {"nothing", {}, 0, {}},
      {"a mutual pair", {{1, 2}, {2, 1}}, 2, {}},
      {"a cycle", {{1, 2}, {2, 3}, {3, 1}}, 3, {}},
      {"a sequence", {{1, 2}, {2, 3}, {1, 3}}, 3, {{1, 2, 3}}},
      {"all links", {{1, 2}, {2, 1}, {2, 3}, {3, 2}, {1, 3}, {3, 1}}, 3, {{1, 2, 3}}},
      {"two sequences", {{1, 2}, {2, 3}, {1, 3}, {3, 4}, {2, 4}}, 4, {{1, 2, 3}, {2, 3, 4}}},
      {"one of four", {{1, 2}, {2, 3}, {1, 3}, {3, 4}, {2, 4}, {1, 4}}, 4, {{1, 2, 3, 4}}},
      {"a cycle that leads to a node",
       {{1, 2}, {2, 3}, {3, 1}, {1, 4}, {2, 4}, {3, 4}},
       4,
       {{1, 3, 4}, {1, 2, 4}, {2, 3, 4}}},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.name);
    EXPECT_EQ(Found(Map_of(c.links, c.node_count)), c.cliques);
  }
}

TEST(Directed_search, ReportsItsEnd) {
  Found(Map_of({}, 0));
  EXPECT_EQ(Read_state_report(),
            "_____________________________________\n"
            " Altogether 0 directed cliques found.\n");
}

TEST(Directed_search, EndsAtAStop) {
  const Dir_vertex_map map = Map_of({{1, 2}, {2, 3}, {1, 3}}, 3);
  Node_order order;
  Sort_dir_vtx_map(order, map, "Neighs");
  Directed_node_search search(map, order);
  Clique_vector cliques;
  Attempt attempt;
  Stop_process();
  EXPECT_THROW(search.Find(1, attempt, cliques), std::logic_error);
  Reset_stop_process();
}

/// A clock that the test sets.
class Timed_attempt : public testing::Test {
 protected:
  double time_ = 0.0;
  double step_ = 1.0;  ///< how far the clock goes on at each reading
  Time_limit limit_{0.5, [this] { return time_ += step_; }};
  Attempt attempt_{&limit_};
};

TEST_F(Timed_attempt, ThatRunsOverYieldsMaximalCliques) {
  std::mt19937 random(3);
  int timed_out = 0;
  for (const Family& family : families) {
    for (int i = 0; i < 20; ++i) {
      const Pairs links = Random_links(family, 10, random);
      const std::set<Set> all = Cliques_by_definition(links, 10);
      const Dir_vertex_map map = Map_of(links, 10);
      Node_order order;
      Sort_dir_vtx_map(order, map, "Neighs");
      Directed_node_search search(map, order);
      Clique_vector cliques;
      step_ = 0.1 * (i % 6);
      for (const Node_index node : order) {
        attempt_.Start();
        search.Find(node, attempt_, cliques);
        if (attempt_.Timed_out())
          ++timed_out;
        else
          search.Finish(node);
      }
      for (const Set& clique : As_sets(cliques)) EXPECT_TRUE(all.contains(clique));
    }
  }
  EXPECT_GT(timed_out, 100);
}

TEST_F(Timed_attempt, NeverRunsOverWithCliquesOfThreeNodes) {
  const Dir_vertex_map map = Map_of({{1, 2}, {1, 3}, {3, 2}, {1, 4}, {5, 1}, {4, 5}, {2, 4}}, 5);
  Node_order order;
  Sort_dir_vtx_map(order, map, "Neighs");
  Directed_node_search search(map, order);
  Clique_vector cliques;
  for (const Node_index node : order) {
    attempt_.Start();
    search.Find(node, attempt_, cliques);
    EXPECT_FALSE(attempt_.Timed_out());
    search.Finish(node);
  }
  EXPECT_EQ(cliques.size(), 2U);
}

}  // namespace
}  // namespace gns
