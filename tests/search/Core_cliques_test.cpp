#include "search/Core_cliques.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "Literal_core_cliques.h"
#include "Random_graphs.h"

namespace gns {
namespace {

using literal::Graph;
using literal::Set;

std::vector<Set> As_sets(const Clique_vector& rows) {
  std::vector<Set> sets;
  for (std::size_t i = 0; i < rows.size(); ++i) sets.push_back(literal::Members(rows[i]));
  return sets;
}

void Expect_matrix_of(const std::vector<Set>& cliques, Overlap_matrix& matrix) {
  const literal::Matrix shared = literal::Shared_nodes(cliques);
  ASSERT_EQ(matrix.size(), cliques.size());
  for (Clique_index i = 0; i < cliques.size(); ++i)
    ASSERT_EQ(matrix.Row(i), std::vector<Overlap_matrix::Entry>(shared[i].begin(), shared[i].end()))
        << i;
}

/// A left map of all nodes of `graph`, those without links too.
Left_map Left_of(const Graph& graph) {
  Left_map left;
  for (const auto& [node, neighs] : graph) {
    left.nodes.push_back(node);
    left.neighs.push_back(std::vector<Node_index>(neighs.begin(), neighs.end()));
  }
  return left;
}

/// What the three steps make of exact cliques and a left map.
struct Merged {
  std::vector<Set> core;
  std::vector<Set> cliques;
  std::uint32_t exact_clique_count = 0;

  Merged(const Left_map& left, const std::vector<Set>& exact) {
    Clique_vector rows = literal::Rows_of(exact);
    Overlap_matrix matrix(rows);
    Clique_vector core_rows;
    core_rows.push_back(std::vector<Node_index>{7});  // to be cleared
    Appr_core_cliques_ec(left, rows, core_rows);
    Clique_vector dir_core_rows = core_rows;
    Appr_core_cliques_dir_ec(left, rows, dir_core_rows);
    EXPECT_EQ(As_sets(dir_core_rows), As_sets(core_rows));
    core = As_sets(core_rows);
    Extend_clique_vec(rows, exact_clique_count, core_rows);
    Extend_ovlp_matr_ec(matrix, rows, exact_clique_count);
    cliques = As_sets(rows);
    Expect_matrix_of(cliques, matrix);
  }
};

TEST(CoreCliques, KnownLeftMaps) {
  struct Case {
    std::string name;
    std::vector<Set> linked;  ///< sets of hard nodes that are all linked
    std::vector<Set> exact;
    std::vector<Set> core;
    std::vector<Set> exact_left;
  };
  const std::vector<Set> all_but_one = {
      {2, 3, 4, 5}, {1, 3, 4, 5}, {1, 2, 4, 5}, {1, 2, 3, 5}, {1, 2, 3, 4}};
  for (const Case& c : std::vector<Case>{
           {"five linked, nothing found", {{1, 2, 3, 4, 5}}, {}, all_but_one, {}},
           {"five linked, found", {{1, 2, 3, 4, 5}}, {{1, 2, 3, 4, 5}}, {}, {{1, 2, 3, 4, 5}}},
           {"five linked, another found",
            {{1, 2, 3, 4, 5}},
            {{1, 2, 3, 9}, {6, 7, 8}},
            all_but_one,
            {{1, 2, 3, 9}, {6, 7, 8}}},
           {"two sides: equal sets on each",
            {{1, 3}, {1, 4}, {1, 5}, {2, 3}, {2, 4}, {2, 5}},
            {},
            {{3, 4, 5}, {1, 2}},
            {}},
           {"inside a later and an earlier one",
            {{1, 6}, {1, 7}, {4, 6}, {4, 7}, {4, 8}, {9, 7}, {9, 8}},
            {},
            {{6, 7, 8}, {1, 4, 9}},
            {}},
           {"exact cliques inside a core clique",
            {{1, 6}, {1, 7}, {1, 8}, {1, 10}},
            {{2, 3, 4}, {6, 7, 8}, {3, 4, 5}, {6, 7, 9}},
            {{6, 7, 8, 10}, {1}},
            {{2, 3, 4}, {3, 4, 5}, {6, 7, 9}}},
           {"nothing in common", {{1, 2}}, {{3, 4, 5}}, {{2}, {1}}, {{3, 4, 5}}},
           {"no links", {{1}, {2}}, {}, {{}}, {}},
           {"no links, but a clique", {{1}}, {{3, 4, 5}}, {}, {{3, 4, 5}}},
           {"nothing left", {}, {{1, 2, 3}}, {}, {{1, 2, 3}}},
       }) {
    SCOPED_TRACE(c.name);
    Graph graph;
    for (const Set& set : c.linked) {
      for (const Node_index node : set) graph[node];
      literal::Link_all(graph, set);
    }
    const Merged merged(Left_of(graph), c.exact);
    EXPECT_EQ(merged.core, c.core);
    EXPECT_EQ(merged.exact_clique_count, c.exact_left.size());
    std::vector<Set> expected = c.exact_left;
    expected.insert(expected.end(), c.core.begin(), c.core.end());
    EXPECT_EQ(merged.cliques, expected);
  }
}

/// No core clique need be a clique, so the sets found may be any.
TEST(CoreCliques, EqualLiteralOnesOnRandomLeftMaps) {
  std::size_t replaced = 0;
  for (std::uint32_t seed = 0; seed < 4000; ++seed) {
    SCOPED_TRACE(seed);
    literal::Random random(seed);
    const std::uint32_t nodes = random.Between(2, 14);
    const Left_map left = Left_of(literal::Uniform(random, nodes, random.Between(10, 100)));
    std::vector<Set> exact;
    for (std::uint32_t i = random.Below(6); i > 0; --i) {
      const Set set = random.Nodes(nodes + 2, random.Between(3, 3 + nodes / 2));
      if (!literal::Lies_inside_one(set, exact)) exact.push_back(set);
    }
    const Merged merged(left, exact);
    const literal::Covered_cliques literal(left, exact);
    ASSERT_EQ(merged.core, literal.core);
    ASSERT_EQ(merged.cliques, literal.cliques);
    ASSERT_EQ(merged.exact_clique_count, literal.exact_clique_count);
    replaced += exact.size() - literal.exact_clique_count;
  }
  EXPECT_GT(replaced, 500U);
}

}  // namespace
}  // namespace gns
