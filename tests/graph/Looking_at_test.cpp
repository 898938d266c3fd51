#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <utility>
#include <vector>

#include "graph/Index_links.h"
#include "graph/Name_table.h"
#include "graph/Row_array.h"

namespace gns {
namespace {

/// What others hold is read in place, through moves too; what is appended goes to a copy.
TEST(LookingAt, ReadsInPlaceAndGrowsApart) {
  const std::vector<std::size_t> starts{0, 2, 2, 3};
  const std::vector<Node_index> values{5, 6, 7};
  auto rows = Row_array<Node_index>::Looking_at(starts, values);
  const Row_array<Node_index> copy = rows;
  Row_array<Node_index> moved = std::move(rows);
  EXPECT_EQ(rows.size(), 0U);
  ASSERT_EQ(moved.size(), 3U);
  EXPECT_EQ(moved[0].data(), values.data());
  EXPECT_NE(copy.Values().data(), values.data());
  EXPECT_TRUE(std::ranges::equal(copy[0], moved[0]));

  moved.push_back(std::vector<Node_index>{8});
  EXPECT_EQ(moved.size(), 4U);
  EXPECT_EQ(moved[3].front(), 8U);
  EXPECT_TRUE(std::ranges::equal(moved[2], copy[2]));
  moved.Truncate(1);
  EXPECT_EQ(moved.size(), 1U);
  EXPECT_EQ(values, (std::vector<Node_index>{5, 6, 7}));
  EXPECT_EQ(starts, (std::vector<std::size_t>{0, 2, 2, 3}));
}

TEST(LookingAt, LinksAndNamesAreTheSame) {
  const Index_links links({{1, 2}, {1, 3}, {2, 3}}, {0.5, 1, 2}, 3);
  const Index_links seen = Index_links::Looking_at(
      Adjacency::Looking_at(links.All_rows().Starts(), links.All_rows().Members()),
      links.Weights());
  EXPECT_EQ(seen.Node_count(), 3U);
  EXPECT_EQ(seen.size(), 3U);
  EXPECT_EQ(seen.Weight(2, 3), 2);
  EXPECT_EQ(seen.Weight(3, 1), std::nullopt);

  Name_table names;
  names.Add("one");
  names.Add("");
  Name_table others = Name_table::Looking_at(names.All_bytes(), names.Ends());
  EXPECT_EQ(others.Add("three"), 2U);
  EXPECT_EQ(others[0], "one");
  EXPECT_EQ(others[2], "three");
  EXPECT_EQ(names.size(), 2U);
}

}  // namespace
}  // namespace gns
