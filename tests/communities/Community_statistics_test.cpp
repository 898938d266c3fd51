#include "communities/Community_statistics.h"

#include <gtest/gtest.h>

#include <vector>

#include "Random_graphs.h"
#include "Thrown_message.h"

namespace gns {
namespace {

using literal::Set;

struct Statistics {
  Com_graph com_graph;
  Distribution size, degree, overlap, membership;
  bool operator==(const Statistics&) const = default;
};

Statistics Statistics_of(const std::vector<Set>& coms, std::uint32_t vertex_count) {
  const Distribution old = {{77, 77}};  // to be cleared
  Statistics s = {{{7, 8, 9}}, old, old, old, old};
  Prepare_community_graph(s.com_graph, literal::Rows_of(coms));
  Community_statistics(s.size, s.degree, s.overlap, s.membership, literal::Rows_of(coms),
                       vertex_count);
  return s;
}

/// Every community with every other, every node with every community.
Statistics By_brute_force(const std::vector<Set>& coms, std::uint32_t vertex_count) {
  Statistics s = {{}, {}, {}, {}, {{0, 0}}};
  for (std::uint32_t i = 0; i < coms.size(); ++i) {
    std::uint32_t degree = 0;
    for (std::uint32_t j = 0; j < coms.size(); ++j) {
      const auto shared = static_cast<std::uint32_t>(literal::Common(coms[i], coms[j]).size());
      if (i == j || shared == 0) continue;
      ++degree;
      if (i > j) continue;
      s.com_graph.push_back({i, j, shared});
      ++s.overlap[shared];
    }
    ++s.degree[degree];
    ++s.size[static_cast<std::uint32_t>(coms[i].size())];
  }
  for (Node_index node = 1; node <= vertex_count; ++node) {
    std::uint32_t membership = 0;
    for (const Set& com : coms) membership += com.contains(node) ? 1U : 0U;
    ++s.membership[membership];
  }
  return s;
}

TEST(CommunityStatistics, EqualBruteForce) {
  for (std::uint32_t seed = 0; seed < 1500; ++seed) {
    literal::Random random(seed);
    const std::uint32_t node_count = random.Between(3, 40);
    const std::uint32_t others = seed % 4 == 0 ? 8000 : 0;  // in front of them, in no community
    std::vector<Set> coms(random.Below(12));
    for (Set& com : coms)
      for (const Node_index node : random.Nodes(node_count, random.Between(1, node_count)))
        com.insert(others + node);
    ASSERT_EQ(Statistics_of(coms, others + node_count), By_brute_force(coms, others + node_count))
        << seed;
  }
}

TEST(CommunityStatistics, MoreNodesThanTheGraphHas) {
  EXPECT_EQ(Thrown_message([] {
              Statistics_of({{1, 2, 3}, {3, 4}}, 3);
            }),
            "ERROR: Community_statistics() : More vertex in the communities than in the graph.");
}

}  // namespace
}  // namespace gns
