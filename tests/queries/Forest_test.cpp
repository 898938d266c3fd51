#include "queries/Forest.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <string>

#include "Random_graphs.h"
#include "vorlane/vorlane.h"

namespace vorlane::queries {
namespace {

/// What a page or a drawing makes of a forest: all nodes of a community.
std::set<Node> Nodes_in(const Forest& forest, std::uint32_t place) {
  std::set<Node> nodes(forest.Own_nodes(place).begin(), forest.Own_nodes(place).end());
  for (std::uint32_t child = place + 1; child < forest.size(); ++child)
    if (forest.Parent(child) == place) nodes.merge(Nodes_in(forest, child));
  return nodes;
}

Results Random_results(std::uint32_t seed, const Options& options, const Link_options& links) {
  gns::literal::Random random(seed);
  Network::Builder builder(links);
  for (const auto& [node, neighbours] : gns::literal::Clique_rich(random, 25))
    for (const auto other : neighbours)
      if (links.directed ? random.Chance(70) : node < other) {
        if (links.weighted)
          builder.Add(std::to_string(node), std::to_string(other), 1.0 + random.Below(5));
        else
          builder.Add(std::to_string(node), std::to_string(other));
      }
  return Find(builder.Build(), options);
}

TEST(Forest, HasAllNodesOfAllCommunities) {
  Link_options directed;
  directed.directed = true;
  Link_options weighted;
  weighted.weighted = true;
  Options intensity;
  intensity.intensity = 2.5;
  Options single;
  single.k = 4;
  const std::pair<Options, Link_options> kinds[] = {
      {{}, {}}, {{}, directed}, {intensity, weighted}, {single, {}}};
  for (std::uint32_t seed = 1; seed < 40; ++seed) {
    const auto& [options, links] = kinds[seed % 4];
    const Results results = Random_results(seed, options, links);
    const Forest forest(results);
    std::vector<std::uint32_t> homes = forest.Homes(results.Network().size());
    for (std::size_t level = 0; level < forest.Ks().size(); ++level) {
      const std::uint32_t k = forest.Ks()[level];
      const Rows members = results.At(k).members;
      ASSERT_EQ(forest.First_of(level + 1) - forest.First_of(level), members.size());
      for (std::uint32_t i = 0; i < members.size(); ++i) {
        const std::uint32_t place = forest.First_of(level) + i;
        EXPECT_EQ(forest.Level_of(place), level);
        EXPECT_EQ(forest.Size(place), members[i].size());
        const std::set<Node> nodes = Nodes_in(forest, place);
        EXPECT_TRUE(std::ranges::equal(nodes, members[i])) << "seed " << seed << ", k " << k;
        for (const Node node : members[i]) {
          ASSERT_NE(homes[node], Forest::none);
          EXPECT_GE(forest.Level_of(homes[node]), level);
        }
      }
    }
  }
}

}  // namespace
}  // namespace vorlane::queries
