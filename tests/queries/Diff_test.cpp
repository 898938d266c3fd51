#include "queries/Diff.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <map>
#include <memory>
#include <set>
#include <string>
#include <vector>

#include "Random_graphs.h"
#include "queries/Similarity.h"
#include "vorlane/vorlane.h"

namespace vorlane::queries {
namespace {

using Cover = std::vector<std::vector<Node>>;

Rows Rows_of_cover(const Cover& cover) {
  struct Flat {
    std::vector<std::size_t> starts = {0};
    std::vector<Node> nodes;
  };
  const auto flat = std::make_shared<Flat>();
  for (const auto& community : cover) {
    flat->nodes.insert(flat->nodes.end(), community.begin(), community.end());
    flat->starts.push_back(flat->nodes.size());
  }
  return {flat->starts, flat->nodes, flat};
}

int Together(const Cover& cover, Node u, Node v) {
  return static_cast<int>(std::ranges::count_if(cover, [&](const auto& community) {
    return std::ranges::binary_search(community, u) && std::ranges::binary_search(community, v);
  }));
}

/// As the definition has it: pair by pair.
double Plain_omega(Node count, const Cover& a, const Cover& b) {
  std::map<int, double> in_a;
  std::map<int, double> in_b;
  double agree = 0;
  double pairs = 0;
  for (Node u = 1; u <= count; ++u)
    for (Node v = u + 1; v <= count; ++v) {
      const int times_a = Together(a, u, v);
      const int times_b = Together(b, u, v);
      ++in_a[times_a];
      ++in_b[times_b];
      ++pairs;
      if (times_a == times_b) ++agree;
    }
  double expected = 0;
  for (const auto& [times, number] : in_a)
    if (in_b.contains(times)) expected += number * in_b[times] / pairs / pairs;
  return expected < 1 ? (agree / pairs - expected) / (1 - expected) : 1;
}

/// As the definition has it: community by community, each against all others.
double Plain_nmi(Node count, const Cover& a, const Cover& b) {
  const auto part = [&](double n) { return n > 0 ? -n * std::log2(n / count) : 0.0; };
  const auto entropy = [&](const auto& x) {
    return part(static_cast<double>(x.size())) + part(count - static_cast<double>(x.size()));
  };
  const auto given = [&](const Cover& xs, const Cover& ys) {
    double sum = 0;
    for (const auto& x : xs) {
      double least = entropy(x);
      for (const auto& y : ys) {
        double cells[2][2] = {};
        for (Node node = 1; node <= count; ++node)
          ++cells[std::ranges::binary_search(x, node)][std::ranges::binary_search(y, node)];
        if (part(cells[0][0]) + part(cells[1][1]) < part(cells[0][1]) + part(cells[1][0])) continue;
        least = std::min(least, part(cells[0][0]) + part(cells[1][1]) + part(cells[0][1]) +
                                    part(cells[1][0]) - entropy(y));
      }
      sum += least;
    }
    return sum;
  };
  double h_a = 0;
  double h_b = 0;
  for (const auto& x : a) h_a += entropy(x);
  for (const auto& y : b) h_b += entropy(y);
  if (!(std::max(h_a, h_b) > 0)) return 1;
  return (h_a - given(a, b) + h_b - given(b, a)) / 2 / std::max(h_a, h_b);
}

TEST(Similarity, EqualsTheDefinitions) {
  for (std::uint32_t seed = 1; seed <= 300; ++seed) {
    SCOPED_TRACE(seed);
    gns::literal::Random random(seed);
    const Node count = random.Between(2, 14);
    const auto cover = [&] {
      Cover found;
      for (std::uint32_t i = random.Between(0, 6); i > 0; --i) {
        std::set<Node> nodes;
        for (std::uint32_t j = random.Between(1, 12); j > 0; --j)
          nodes.insert(random.Between(1, count));
        found.emplace_back(nodes.begin(), nodes.end());
      }
      return found;
    };
    const Cover a = cover();
    const Cover b = seed % 5 == 0 ? a : cover();
    const Covers covers = {count, Rows_of_cover(a), Rows_of_cover(b)};
    EXPECT_NEAR(Omega_index(covers), Plain_omega(count, a, b), 1e-9);
    EXPECT_NEAR(Overlapping_nmi(covers), Plain_nmi(count, a, b), 1e-9);
    if (seed % 5 == 0) {
      EXPECT_NEAR(Omega_index(covers), 1.0, 1e-9);
    }
  }
}

/// The results of cliques, each told by its nodes, one letter a node.
Results Of_cliques(const std::vector<std::string>& cliques) {
  Network::Builder builder;
  for (const std::string& clique : cliques)
    for (std::size_t i = 0; i < clique.size(); ++i)
      for (std::size_t j = 0; j < i; ++j) builder.Add(clique.substr(i, 1), clique.substr(j, 1));
  return Find(builder.Build());
}

TEST(Diff, TellsWhatBecameOfEachCommunity) {
  const struct {
    std::vector<std::string> before;
    std::vector<std::string> after;
    std::vector<std::pair<Fate, double>> changes;
  } cases[] = {
      {{"abcd", "xyz"}, {"xyz", "abcd"}, {{Fate::kept, 1}, {Fate::kept, 1}}},
      {{"abcd"}, {"abcde"}, {{Fate::grown, 0.8}}},
      {{"abcde"}, {"abcd", "de"}, {{Fate::shrunk, 0.8}}},
      {{"abcd"}, {"abce"}, {{Fate::changed, 0.6}}},
      {{"abc"}, {"xyz"}, {{Fate::died, 0}, {Fate::born, 0}}},
      {{"abcde", "xyz"}, {"abcdexyz"}, {{Fate::grown, 0.625}, {Fate::merged, 0.375}}},
      {{"abcdexyz"}, {"abcde", "xyz"}, {{Fate::shrunk, 0.625}, {Fate::split, 0.375}}},
      {{"abc"}, {"cdefghi"}, {{Fate::died, 0}, {Fate::born, 0}}},
      {{"abc"}, {"ab"}, {{Fate::died, 0}}},
  };
  for (const auto& [before, after, changes] : cases) {
    SCOPED_TRACE(before[0] + " " + after[0]);
    const auto diffs = Diff_of(Of_cliques(before), Of_cliques(after), 3);
    ASSERT_EQ(diffs.size(), 1U);
    std::vector<std::pair<Fate, double>> found;
    for (const Change& change : diffs[0].changes) found.emplace_back(change.fate, change.jaccard);
    std::ranges::sort(found);  // how a result numbers its communities is another matter
    EXPECT_EQ(found, changes);
  }
}

TEST(Diff, LevelsThatOneLacksHaveNoCommunities) {
  const auto diffs = Diff_of(Of_cliques({"abcd"}), Of_cliques({"abcde"}));
  ASSERT_EQ(diffs.size(), 3U);
  EXPECT_EQ(diffs[0].k, 5U);
  EXPECT_EQ(diffs[0].changes[0].fate, Fate::born);
  EXPECT_EQ(diffs[0].changes[0].size_after, 5U);
  EXPECT_FALSE(diffs[0].changes[0].before);
  EXPECT_EQ(diffs[1].changes[0].size_before, 4U);
}

}  // namespace
}  // namespace vorlane::queries
