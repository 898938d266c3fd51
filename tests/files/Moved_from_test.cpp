#include <gtest/gtest.h>

#include <utility>

#include "graph/Index_links.h"
#include "graph/Link_map.h"
#include "graph/Node_names.h"
#include "graph/Row_array.h"
#include "graph/Vertex_map.h"
#include "intensity/K_cliques.h"
#include "results/Com_result_tables.h"

namespace gns {
namespace {

const Node_index members[] = {1, 2, 3};

Link_map One_link() {
  Link_map_builder links(true);
  links.Add("a", "b", 1);
  return links.Build();
}

/// How many things stand in a container that was filled, then moved from: by construction, and by
/// assignment.
template <typename Container>
std::pair<std::size_t, std::size_t> Left_in(Container filled) {
  EXPECT_GT(filled.size(), 0U);
  Container copy = filled;
  Container moved = std::move(filled);
  Container assigned = std::move(moved);
  moved = std::move(assigned);
  copy = std::move(moved);
  EXPECT_GT(copy.size(), 0U);
  return {filled.size(), assigned.size() + moved.size()};
}

constexpr std::pair<std::size_t, std::size_t> nothing = {0, 0};

TEST(MovedFrom, ContainersAreEmpty) {
  Row_array<Node_index> rows;
  rows.push_back(members);
  K_cliques k_cliques(3);
  k_cliques.push_back(members);
  const Index_links links({{1, 2}}, {1.0}, 2);
  const Adjacency adjacency(2, [](auto enter) { enter(1, 2), enter(2, 1); });
  Name_table table;
  table.Add("a");
  EXPECT_EQ(Left_in(rows), nothing);
  EXPECT_EQ(Left_in(k_cliques), nothing);
  EXPECT_EQ(Left_in(links), nothing);
  EXPECT_EQ(Left_in(Vertex_map(adjacency)), nothing);
  EXPECT_EQ(Left_in(Dir_vertex_map(adjacency, adjacency, adjacency)), nothing);
  EXPECT_EQ(Left_in(Node_set{1, 2}), nothing);
  EXPECT_EQ(Left_in(Node_names(table, {0})), nothing);
  EXPECT_EQ(Left_in(One_link()), nothing);
  EXPECT_EQ(Left_in(Name_list{"a"}), nothing);
  EXPECT_EQ(Left_in(Name_pairs{{"a", "b"}}), nothing);
  EXPECT_EQ(Left_in(Index_list{1}), nothing);
  EXPECT_EQ(Left_in(Names_by_index{{0, {"a"}}}), nothing);
}

/// They can be filled again, like new ones.
TEST(MovedFrom, ContainersServeAgain) {
  Row_array<Node_index> rows;
  rows.push_back(members);
  Row_array<Node_index> taken = std::move(rows);
  rows.Truncate(0);
  rows.push_back(members);
  EXPECT_EQ(rows[0].size(), 3U);

  Link_map links = One_link();
  const Link_map other = std::move(links);
  EXPECT_EQ(links.Names().size(), 0U);

  Index_links index_links({{1, 2}}, {}, 2);
  const Index_links kept = std::move(index_links);
  EXPECT_FALSE(index_links.contains(0, 1) || index_links.contains(1, 2));

  Names_by_index open;
  open.Add(1).push_back("a");
  const Names_by_index half = std::move(open);
  open.Add(2).push_back("b");
  open.Finish();
  EXPECT_EQ(open, (Names_by_index{{2, {"b"}}}));
}

}  // namespace
}  // namespace gns
