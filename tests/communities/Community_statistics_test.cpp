#include "communities/Community_statistics.h"

#include <gtest/gtest.h>

#include <set>
#include <vector>

#include "Random_graphs.h"
#include "foundation/Errors.h"

namespace gns {
namespace {

using literal::Set;

struct Statistics {
  Com_graph com_graph = {{7, 8, 9}};
  Distribution size = {{77, 77}};
  Distribution degree = size;
  Distribution overlap = size;
  Distribution membership = size;
  bool operator==(const Statistics&) const = default;
};

Statistics Statistics_of(const std::vector<Set>& coms, std::uint32_t vertex_count) {
  Statistics s;
  Prepare_community_graph(s.com_graph, literal::Rows_of(coms));
  Community_statistics(s.size, s.degree, s.overlap, s.membership, literal::Rows_of(coms),
                       vertex_count);
  return s;
}

/// Every community with every other, every node with every community.
Statistics By_brute_force(const std::vector<Set>& coms, std::uint32_t vertex_count) {
  Statistics s = {{}, {}, {}, {}, {}};
  for (std::uint32_t i = 0; i < coms.size(); ++i) {
    std::uint32_t degree = 0;
    for (std::uint32_t j = 0; j < coms.size(); ++j) {
      const auto shared = static_cast<std::uint32_t>(literal::Tighten(coms[i], coms[j], {}).size());
      if (i == j || shared == 0) continue;
      ++degree;
      if (i > j) continue;
      s.com_graph.push_back({i, j, shared});
      ++s.overlap[shared];
    }
    ++s.degree[degree];
    ++s.size[static_cast<std::uint32_t>(coms[i].size())];
  }
  s.membership[0] = 0;
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
    std::vector<Set> coms(random.Below(12));
    for (Set& com : coms) com = random.Nodes(node_count, random.Between(1, node_count));
    ASSERT_EQ(Statistics_of(coms, node_count), By_brute_force(coms, node_count)) << seed;
  }
}

TEST(CommunityStatistics, KnownCommunities) {
  struct Case {
    std::vector<Set> coms;
    std::uint32_t vertex_count;
    Statistics expected;  ///< community graph; size, degree, overlap, membership
  };
  for (const Case& c : std::vector<Case>{
           {{}, 5, {{}, {}, {}, {}, {{0, 5}}}},
           {{}, 0, {{}, {}, {}, {}, {{0, 0}}}},
           {{{1, 2, 3}}, 3, {{}, {{3, 1}}, {{0, 1}}, {}, {{0, 0}, {1, 3}}}},
           {{{1, 2, 3}, {2, 3, 4, 9}},
            9,
            {{{0, 1, 2}}, {{3, 1}, {4, 1}}, {{1, 2}}, {{2, 1}}, {{0, 4}, {1, 3}, {2, 2}}}},
           {{{1, 2, 3}, {3, 4, 5}, {3, 6, 7}},
            7,
            {{{0, 1, 1}, {0, 2, 1}, {1, 2, 1}},
             {{3, 3}},
             {{2, 3}},
             {{1, 3}},
             {{0, 0}, {1, 6}, {3, 1}}}},
       })
    EXPECT_EQ(Statistics_of(c.coms, c.vertex_count), c.expected);
}

TEST(CommunityStatistics, MoreNodesThanTheGraphHas) {
  try {
    Statistics_of({{1, 2, 3}, {3, 4}}, 3);
    ADD_FAILURE() << "nothing was thrown";
  } catch (const Xerror_msg& error) {
    EXPECT_STREQ(
        error.what(),
        "ERROR: Community_statistics() : More vertex in the communities than in the graph.");
  }
}

}  // namespace
}  // namespace gns
