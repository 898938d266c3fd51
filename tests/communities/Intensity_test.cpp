#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <random>
#include <string>
#include <vector>

#include "Literal_intensity.h"
#include "Weighted_sample.h"
#include "communities/K_clique_communities.h"
#include "communities/K_clique_generation.h"

namespace gns {
namespace {

std::vector<literal::Set> Sets_of(const K_cliques& k_cliques) {
  std::vector<literal::Set> sets;
  for (std::size_t i = 0; i < k_cliques.size(); ++i)
    sets.emplace_back(k_cliques[i].begin(), k_cliques[i].end());
  return sets;
}

std::vector<literal::Set> Literal_k_cliques(const Weighted_sample& sample, unsigned k,
                                            double threshold) {
  literal::Generation generation(sample.links, k, threshold);
  for (std::size_t i = 0; i < sample.cliques.size(); ++i)
    generation.Add_from({sample.cliques[i].begin(), sample.cliques[i].end()});
  return {generation.k_cliques.begin(), generation.k_cliques.end()};
}

/// Compares k-cliques, communities and their links with the literal ones.
void Compare(const Weighted_sample& sample, const Weighted_cliques& weighted, unsigned k,
             double threshold) {
  SCOPED_TRACE(testing::Message() << "k=" << k << " I=" << threshold);
  K_cliques k_cliques(k);
  Generate_k_cls_from_cls_ec(weighted, k_cliques, k, threshold);
  const std::vector<literal::Set> expected = Literal_k_cliques(sample, k, threshold);
  ASSERT_EQ(Sets_of(k_cliques), expected);

  Row_array<Node_index> coms;
  Row_array<K_clique_index> com_k_cliques;
  Intensity_coms_from_k_cliques_ec(k_cliques, coms, com_k_cliques, weighted.Logs(), threshold);
  const auto literal =
      literal::Communities_of({expected.begin(), expected.end()}, k, sample.links, threshold);
  ASSERT_EQ(coms.size(), literal.coms.size());
  const K_clique_com_links com_links(k_cliques, com_k_cliques);
  std::size_t com = 0;
  for (const auto& [index, members] : literal.coms) {
    EXPECT_EQ(literal::Set(coms[com].begin(), coms[com].end()), members);
    std::vector<literal::Link> links;
    com_links.For_each(com, [&](Index_pair link) { links.emplace_back(link.first, link.second); });
    EXPECT_EQ(links, literal.links.at(index));
    ++com;
  }
}

literal::Links Random_links(std::mt19937& random, Node_index nodes,
                            const std::vector<double>& weights) {
  const auto below = [&](std::size_t limit) { return random() % limit; };
  literal::Links links;
  const std::size_t share = 3 + below(8);
  for (Node_index a = 1; a <= nodes; ++a)
    for (Node_index b = a + 1; b <= nodes; ++b)
      if (below(10) < share) links[{a, b}] = weights[below(weights.size())];
  return links;
}

/// Weights, and thresholds of which some are met exactly by sets of equal weights.
struct Weight_case {
  const char* name;
  std::vector<double> weights;
  std::vector<double> thresholds;
};

void PrintTo(const Weight_case& c, std::ostream* out) { *out << c.name; }

class Intensity : public testing::TestWithParam<Weight_case> {};

TEST_P(Intensity, EqualsTheLiteralMethod) {
  std::mt19937 random(1);
  const auto compare_some = [&](int rounds, Node_index least_nodes, unsigned least_k) {
    for (int round = 0; round < rounds && !HasFailure(); ++round) {
      const auto nodes = static_cast<Node_index>(least_nodes + random() % 8);
      const Weighted_sample sample(Random_links(random, nodes, GetParam().weights), nodes);
      const Weighted_cliques weighted(sample.cliques, sample.index_links);
      for (unsigned k = least_k; k <= least_k + 2; ++k)
        for (const double threshold : GetParam().thresholds)
          Compare(sample, weighted, k, threshold);
    }
  };
  compare_some(200, 3, 3);
  compare_some(8, 8, 6);
}

constexpr double infinity = std::numeric_limits<double>::infinity();

INSTANTIATE_TEST_SUITE_P(
    Weights, Intensity,
    testing::Values(
        Weight_case{"ties", {1.0, 2.0, 4.0}, {1.0, 2.0, std::sqrt(8.0), 4.0}},
        Weight_case{"equal", {3.0}, {3.0, std::nextafter(3.0, 0.0), 2.9}},
        // Added up in another order, these sums fall on the other side of the threshold.
        Weight_case{"equal_low", {0.71}, {0.71}}, Weight_case{"equal_high", {2.94}, {2.94}},
        Weight_case{"ones", {1.0}, {0.0, 1.0}},
        Weight_case{"fractions", {0.1, 0.2, 0.3, 0.7, 1.1}, {0.0, 0.1, 0.25, 0.3, 1e-300, 1e300}},
        Weight_case{"zero", {0.0, 0.5, 2.0, 8.0}, {0.0, 0.5, 2.0, 3.0}},
        Weight_case{"negative", {-1.0, 0.5, 1.0, 3.0}, {0.0, 0.5, 1.0, -2.0}},
        Weight_case{"mostly_negative", {-1.0, -1.0, 2.0}, {0.0, 1.5, 2.0}},
        Weight_case{"infinite", {0.0, 0.5, 4.0, infinity}, {0.0, 1.0, 4.0, infinity}},
        Weight_case{"all_kinds", {-1.0, 0.0, 1.0, 2.0, infinity}, {0.0, 1.0, 1.5}}),
    [](const auto& the_case) { return the_case.param.name; });

}  // namespace
}  // namespace gns
