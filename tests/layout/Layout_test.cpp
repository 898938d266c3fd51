#include <gtest/gtest.h>

#include <algorithm>
#include <bit>
#include <cmath>
#include <queue>
#include <string>
#include <vector>

#include "Random_graphs.h"
#include "control/Run_control.h"
#include "layout/Network_layout.h"
#include "layout/Quad_tree.h"
#include "vorlane/vorlane.h"

namespace vorlane::layout {
namespace {

using queries::Forest;

/// Cliques of five in a ring, neighbours sharing a node, some loose ends, and a pair apart.
Results Ring_of_cliques(Node cliques) {
  Network::Builder builder(4 * cliques + 3, {});
  std::vector<Node> from;
  std::vector<Node> to;
  for (Node i = 0; i < cliques; ++i)
    for (Node a = 0; a < 5; ++a)
      for (Node b = a + 1; b < 5; ++b) {
        from.push_back((4 * i + a) % (4 * cliques) + 1);
        to.push_back((4 * i + b) % (4 * cliques) + 1);
      }
  from.insert(from.end(), {2, 4 * cliques + 2});
  to.insert(to.end(), {4 * cliques + 1, 4 * cliques + 3});
  builder.Add(from, to, {});
  return Find(builder.Build());
}

Results Random_results(std::uint32_t seed) {
  gns::literal::Random random(seed);
  Network::Builder builder;
  for (const auto& [node, neighbours] : gns::literal::Clique_rich(random, 60))
    for (const auto other : neighbours) builder.Add(std::to_string(node), std::to_string(other));
  return Find(builder.Build());
}

double Distance(const Point& a, const Point& b) { return std::hypot(a.x - b.x, a.y - b.y); }

TEST(CirclePacking, LaysCirclesSideBySide) {
  gns::literal::Random random(7);
  for (const std::uint32_t count : {0U, 1U, 2U, 3U, 10U, 400U, 1000U}) {
    std::vector<Circle> circles(count);
    double area = 0;
    for (Circle& circle : circles) {
      circle.radius = count == 400 ? 1 : 0.1 + random.Below(100);
      area += circle.radius * circle.radius;
    }
    const double around = Pack(circles);
    for (std::size_t i = 0; i < circles.size(); ++i) {
      const Circle& a = circles[i];
      EXPECT_LE(std::hypot(a.centre.x, a.centre.y) + a.radius, around * (1 + 1e-9)) << count;
      for (std::size_t j = 0; j < i; ++j)
        EXPECT_GE(Distance(a.centre, circles[j].centre),
                  (a.radius + circles[j].radius) * (1 - 1e-5))
            << count << ": " << i << " and " << j;
    }
    const double least = count >= 400 ? 0.6 * around * around : 0;
    EXPECT_GE(area, least) << "loose: " << count;
  }
}

TEST(ForestPacking, PutsCommunitiesInsideTheirParentsAndBesideEachOther) {
  for (std::uint32_t seed = 1; seed < 30; ++seed) {
    const Results results = Random_results(seed);
    const Forest forest(results);
    const Packed_forest packed = Pack_forest(forest, results.Network().size());
    for (std::uint32_t place = 0; place < forest.size(); ++place) {
      const Circle& circle = packed.communities[place];
      const std::uint32_t parent = forest.Parent(place);
      const Circle around =
          parent == Forest::none ? Circle{{}, packed.radius} : packed.communities[parent];
      EXPECT_LE(Distance(circle.centre, around.centre) + circle.radius, around.radius + 1e-6);
      EXPECT_GE(circle.radius * circle.radius, forest.Size(place));
      for (std::uint32_t other = place + 1; other < forest.size(); ++other) {
        if (forest.Parent(other) != parent || forest.Level_of(other) != forest.Level_of(place))
          continue;
        EXPECT_GE(Distance(circle.centre, packed.communities[other].centre),
                  circle.radius + packed.communities[other].radius - 1e-5);
      }
    }
  }
}

TEST(QuadTree, PushesAsPointByPointUpToItsAccuracy) {
  std::vector<Point> points;
  for (std::uint32_t i = 0; i < 500; ++i) {
    const double row = i / 20;
    points.push_back({std::sqrt(i) * 3, row * row / 10});
  }
  points.insert(points.end(), 20, {5, 5});  // at one place
  const Quad_tree tree(points);
  for (const Point& place : points) {
    Point plain;
    double lengths = 0;
    for (const Point& other : points) {
      const double dx = place.x - other.x;
      const double dy = place.y - other.y;
      const double squared = std::max(0.01, dx * dx + dy * dy);
      plain.x += dx / squared;
      plain.y += dy / squared;
      lengths += std::hypot(dx, dy) / squared;
    }
    EXPECT_LT(Distance(tree.Push_at(place, 0.01), plain), 0.05 * lengths);
  }
}

TEST(Layout, PutsLinkedNodesCloserTogetherThanOthers) {
  const Results results = Ring_of_cliques(12);
  const Network network = results.Network();
  const Layout layout = Layout_of(network, Forest(results));
  ASSERT_EQ(layout.nodes.size(), network.size() + 1U);
  double linked = 0;
  const Rows links = network.Links();
  for (Node node = 1; node <= network.size(); ++node)
    for (const Node other : links[node])
      linked += Distance(layout.nodes[node], layout.nodes[other]);
  linked /= static_cast<double>(network.Link_count());
  double all = 0;
  for (Node node = 1; node <= network.size(); ++node)
    for (Node other = 1; other < node; ++other) {
      all += Distance(layout.nodes[node], layout.nodes[other]);
      EXPECT_GT(Distance(layout.nodes[node], layout.nodes[other]), 0.01);
    }
  all /= network.size() * (network.size() - 1) / 2.0;
  EXPECT_LT(linked, all / 3);
}

TEST(Layout, IsTheSameToTheLastBitWhateverTheCompiler) {
  const Results results = Ring_of_cliques(40);
  const Layout layout = Layout_of(results.Network(), Forest(results));
  std::uint64_t sum = 0;
  const auto add = [&](double value) {
    sum = std::rotl(sum, 7) * 31 + std::bit_cast<std::uint64_t>(value);
  };
  for (const Point& place : layout.nodes) (add(place.x), add(place.y));
  for (const Circle& circle : layout.communities)
    (add(circle.centre.x), add(circle.centre.y), add(circle.radius));
  EXPECT_EQ(sum, 9806399106183882861U);
}

TEST(Layout, StopsWhenAskedAndTellsItsWork) {
  const Results results = Ring_of_cliques(2000);
  const Forest forest(results);
  external_control::Run_control control;
  const external_control::Control_in_use in_use(control);
  control.stop = true;
  EXPECT_THROW((void)Layout_of(results.Network(), forest), std::logic_error);
  control.stop = false;
  (void)Layout_of(results.Network(), forest);
  EXPECT_GT(control.work_done.Now().stage, 0U);
}

TEST(Layout, OfNothingIsEmpty) {
  const Results results = Find(Network());
  const Layout layout = Layout_of(results.Network(), Forest(results));
  EXPECT_EQ(layout.nodes.size(), 1U);
  EXPECT_TRUE(layout.communities.empty());
}

}  // namespace
}  // namespace vorlane::layout
