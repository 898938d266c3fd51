#include "parts/Level_groups.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <vector>

#include "Literal_search.h"
#include "Random_graphs.h"

namespace gns::parts {
namespace {

/// The cheapest dearest group of all ways to cut the levels into so many.
std::uint64_t Least_of_all_cuts(const Level_costs& costs, std::uint64_t first_k,
                                std::uint64_t end_k, std::uint64_t groups) {
  if (first_k == end_k) return 0;
  if (groups == 1) return costs.Of(end_k - 1, first_k);
  std::uint64_t least = costs.Of(end_k - 1, first_k);
  for (std::uint64_t k = first_k + 1; k < end_k; ++k)
    least = std::min(
        least, std::max(costs.Of(k - 1, first_k), Least_of_all_cuts(costs, k, end_k, groups - 1)));
  return least;
}

/// Groups stand behind each other, hold every k once, and no others would be cheaper.
TEST(LevelGroups, ShareOutAllLevels) {
  for (std::uint32_t seed = 0; seed < 300; ++seed) {
    SCOPED_TRACE(seed);
    literal::Random random(seed);
    Level_counts counts;
    counts.cliques_of.resize(1 + random.Below(12), 0);
    for (std::size_t n = 3; n < counts.cliques_of.size(); ++n)
      counts.cliques_of[n] = random.Below(n % 2 == 0 ? 200000 : 300);
    counts.links_of.resize(counts.cliques_of.size(), random.Below(100000));
    Run_plan plan;
    plan.estimates.resize(random.Between(1, 6));
    const std::vector<Level_group> groups = Groups_of_levels(plan, counts);
    ASSERT_EQ(groups.size(), plan.Parts());
    const Level_costs costs(counts);
    std::uint64_t next_k = 3;
    std::uint64_t dearest = 0;
    for (const Level_group& group : groups) {
      if (group.Is_empty()) continue;
      EXPECT_EQ(group.to, next_k);
      EXPECT_EQ(group.estimate, costs.Of(group.from, group.to));
      dearest = std::max(dearest, group.estimate);
      next_k = group.from + 1;
    }
    const std::uint64_t end_k = std::max<std::size_t>(3, counts.cliques_of.size());
    EXPECT_EQ(next_k, end_k);
    EXPECT_EQ(dearest, Least_of_all_cuts(costs, 3, end_k, plan.Parts()));
  }
  for (const std::uint32_t k : {3U, 7U, 4000000000U}) {
    Run_plan plan;
    plan.estimates.resize(3);
    plan.parameters.use_single_k = true;
    plan.parameters.single_k = k;
    const std::vector<Level_group> groups =
        Groups_of_levels(plan, {{0, 0, 0, 5, 5}, {0, 0, 0, 9, 9}});
    EXPECT_EQ(groups[0].from, k);
    EXPECT_EQ(groups[0].to, k);
    EXPECT_TRUE(groups[1].Is_empty() && groups[2].Is_empty());
  }
}

/// By looking at every clique for every link.
TEST(LevelGroups, CountWhatLevelsHold) {
  for (std::uint32_t seed = 0; seed < 100; ++seed) {
    const literal::Graph graph = literal::Random_graph(seed);
    const std::vector<literal::Set> cliques = literal::Cliques_of(graph);
    std::vector<Index_pair> links;
    for (const auto& [node, neighs] : graph)
      for (const Node_index other : neighs)
        if (node < other) links.push_back({node, other});
    std::map<std::size_t, std::size_t> sizes;
    for (const literal::Set& clique : cliques) ++sizes[clique.size()];
    std::map<std::size_t, std::size_t> links_of;
    for (const Index_pair& link : links) {
      const auto largest_with = [&](Node_index node) {
        std::size_t largest = 0;
        for (const literal::Set& clique : cliques)
          if (clique.contains(node)) largest = std::max(largest, clique.size());
        return largest;
      };
      ++links_of[std::min(largest_with(link.first), largest_with(link.second))];
    }

    const auto half = static_cast<std::ptrdiff_t>(cliques.size() / 2);
    const Clique_vector first = literal::Rows_of({cliques.begin(), cliques.begin() + half});
    const Clique_vector second = literal::Rows_of({cliques.begin() + half, cliques.end()});
    const Level_counts counts = Count_for_levels(
        {&first, &second}, Index_links(links, {}, static_cast<Node_index>(graph.size())));
    ASSERT_EQ(counts.cliques_of.size(), sizes.empty() ? 1 : sizes.rbegin()->first + 1) << seed;
    for (std::size_t n = 0; n < counts.cliques_of.size(); ++n) {
      EXPECT_EQ(counts.cliques_of[n], sizes[n]) << seed;
      EXPECT_EQ(counts.links_of[n], links_of[n]) << seed;
    }
    const Level_costs costs(counts);
    for (std::size_t k = 3; k < counts.cliques_of.size(); ++k) {
      std::size_t listed = 0;  // a clique of k nodes shares k - 1 with others: at its first two
      for (const literal::Set& clique : cliques)
        if (clique.size() >= k) listed += clique.size() - k + 2;
      EXPECT_EQ(costs.Listed(k), listed) << seed;
    }
  }
}

}  // namespace
}  // namespace gns::parts
