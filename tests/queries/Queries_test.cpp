#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "Random_graphs.h"
#include "queries/Summary.h"
#include "queries/Tree.h"
#include "queries/Which_k.h"
#include "vorlane/vorlane.h"

namespace vorlane::queries {
namespace {

Network Random_network(std::uint32_t seed) {
  gns::literal::Random random(seed);
  Link_options options;
  options.weighted = true;
  options.directed = seed % 3 == 1;
  constexpr Node count = 24;
  Network::Builder builder(count, options);
  std::vector<Node> from;
  std::vector<Node> to;
  std::vector<double> weights;
  for (std::uint32_t links = random.Between(20, 150); links > 0; --links) {
    from.push_back(random.Between(1, count));
    to.push_back(random.Between(1, count));
    weights.push_back(random.Between(1, 9));
  }
  builder.Add(from, to, weights);
  return builder.Build();
}

Results Random_results(std::uint32_t seed) {
  Options options;
  if (seed % 3 == 2) options.intensity = 3.0;
  return Find(Random_network(seed), options);
}

/// The figures, counted from the members.
TEST(Queries, SummaryIsWhatTheMembersTell) {
  for (std::uint32_t seed = 1; seed <= 60; ++seed) {
    SCOPED_TRACE(seed);
    const Results results = Random_results(seed);
    const Summary summary = Summary_of(results);
    EXPECT_TRUE(summary.levels.empty() || summary.nodes == results.Network().size());
    for (const Level_summary& found : summary.levels) {
      const Level& level = results.At(found.k);
      std::vector<std::size_t> sizes;
      std::vector<int> memberships(summary.nodes + 1, 0);
      for (const auto community : level.members) {
        sizes.push_back(community.size());
        for (const Node node : community) ++memberships[node];
      }
      std::ranges::sort(sizes, std::greater());
      sizes.resize(std::max<std::size_t>(sizes.size(), 2), 0);
      EXPECT_EQ(found.communities, level.members.size());
      EXPECT_EQ(found.largest, sizes[0]);
      EXPECT_EQ(found.second_largest, sizes[1]);
      const auto at_least = [&](int least) {
        return static_cast<std::size_t>(
            std::ranges::count_if(memberships, [=](int m) { return m >= least; }));
      };
      EXPECT_EQ(found.covered, at_least(1));
      EXPECT_EQ(found.overlapping, at_least(2));
      EXPECT_EQ(found.overlaps, level.overlaps.size());
    }
  }
}

TEST(Queries, EachCommunityLiesInItsParent) {
  for (std::uint32_t seed = 1; seed <= 90; ++seed) {
    SCOPED_TRACE(seed);
    const Results results = Random_results(seed);
    std::size_t count = 0;
    for (const Tree_node& node : Tree_of(results)) {
      ++count;
      const auto members = results.At(node.place.k).members[node.place.community];
      const bool has_lower = std::ranges::count(results.Ks(), node.place.k - 1) > 0;
      if (results.Method() != Method::intensity) {
        EXPECT_EQ(node.parent.has_value(), has_lower);
      }
      if (node.parent) {
        EXPECT_TRUE(
            std::ranges::includes(results.At(node.place.k - 1).members[*node.parent], members));
      }
    }
    std::size_t communities = 0;
    for (const std::uint32_t k : results.Ks()) communities += results.At(k).members.size();
    EXPECT_EQ(count, communities);
  }
}

Level_summary Level_of(std::uint32_t k, std::size_t communities, std::size_t largest,
                       std::size_t second, std::size_t covered) {
  Level_summary level;
  level.k = k;
  level.communities = communities;
  level.largest = largest;
  level.second_largest = second;
  level.covered = covered;
  return level;
}

TEST(Queries, WhichKIsBeforeTheGiant) {
  Summary summary;
  summary.nodes = 100;
  EXPECT_FALSE(Which_k({summary}));
  summary.levels = {Level_of(6, 1, 6, 0, 6), Level_of(5, 3, 8, 7, 20), Level_of(4, 6, 20, 11, 60),
                    Level_of(3, 4, 85, 5, 90)};
  const auto found = Which_k({summary});
  ASSERT_TRUE(found);
  EXPECT_EQ(found->level.k, 4U);
  EXPECT_EQ(found->reason,
            "It covers 60 % of the nodes, the most before a giant community swallows the others: "
            "its largest community has 1.8 times the nodes of the second; one level down it is 17 "
            "times.");
  Summary other = summary;
  other.levels = {Level_of(3, 9, 12, 11, 70)};
  EXPECT_EQ(Which_k({summary, other})->result, 1U);

  summary.levels = {Level_of(4, 2, 30, 3, 33), Level_of(3, 2, 90, 3, 93)};
  EXPECT_EQ(Which_k({summary})->level.k, 4U);
  EXPECT_TRUE(Which_k({summary})->reason.starts_with("One community outgrows the others"));
  summary.levels = {Level_of(4, 1, 4, 0, 4), Level_of(3, 1, 30, 0, 30)};
  EXPECT_EQ(Which_k({summary})->level.k, 3U);
  EXPECT_TRUE(Which_k({summary})->reason.starts_with("At every k there is one community at most"));
}

}  // namespace
}  // namespace vorlane::queries
