#include <gtest/gtest.h>

#include <atomic>
#include <cmath>
#include <limits>
#include <random>
#include <stdexcept>
#include <string>
#include <thread>
#include <vector>

#include "Literal_intensity.h"
#include "Random_graphs.h"
#include "Thrown_message.h"
#include "control/Clique_find_ext_cont.h"
#include "intensity/Hopeful_nodes.h"
#include "intensity/K_clique_communities.h"
#include "intensity/K_clique_generation.h"

namespace gns {
namespace {

using literal::Set;
using literal::Weighted_links;

Index_links Index_links_of(const Weighted_links& links) {
  std::vector<Index_pair> keys;
  std::vector<double> weights;
  Node_index nodes = 0;
  for (const auto& [link, weight] : links) {
    keys.push_back({link.first, link.second});
    weights.push_back(weight);
    nodes = std::max(nodes, link.second);
  }
  return {keys, weights, nodes};
}

std::vector<Set> Maximal_cliques(const Weighted_links& links) {
  literal::Graph graph;
  for (const auto& [link, weight] : links) {
    graph[link.first].insert(link.second);
    graph[link.second].insert(link.first);
  }
  return literal::Cliques_of(graph);
}

/// The k-cliques of a weighted graph and their communities, for one k and threshold after another.
struct Intensity_run {
  explicit Intensity_run(const Weighted_links& links)
      : index_links(Index_links_of(links)), maximal(literal::Rows_of(Maximal_cliques(links))) {}

  void At(std::uint32_t k, double threshold) {
    Generate_k_cls_from_cls_ec(weighted, k_cliques, k, threshold);
    Intensity_coms_from_k_cliques_ec(k_cliques, coms, com_k_cliques, weighted.Logs(), threshold);
  }

  Index_links index_links;
  Clique_vector maximal;
  Weighted_cliques weighted{maximal, index_links};
  K_cliques k_cliques{0};
  Row_array<Node_index> coms;
  Row_array<K_clique_index> com_k_cliques;
};

/// Compares k-cliques, communities and their links with the literal ones.
void Compare(Intensity_run& run, const Weighted_links& links, unsigned k, double threshold) {
  SCOPED_TRACE(testing::Message() << "k=" << k << " I=" << threshold);
  run.At(k, threshold);
  literal::Generation generation{links, k, literal::Log_of_power(threshold, k)};
  for (const Set& clique : literal::Sets_of(run.maximal)) generation.Add_from(clique);
  const std::vector<Set> k_cliques(generation.k_cliques.begin(), generation.k_cliques.end());
  ASSERT_EQ(literal::Sets_of(run.k_cliques), k_cliques);

  using Community = std::pair<Set, std::vector<literal::Link>>;  // members and links
  std::vector<Community> expected;
  std::vector<std::size_t> com_of(k_cliques.size());
  const std::vector<std::size_t> first_of = literal::Communities_of(k_cliques, links, threshold);
  for (std::size_t i = 0; i < k_cliques.size(); ++i) {
    com_of[i] = first_of[i] == i ? expected.size() : com_of[first_of[i]];
    expected.resize(std::max(expected.size(), com_of[i] + 1));
    auto& [members, com_links] = expected[com_of[i]];
    for (const Node_index a : k_cliques[i]) {
      members.insert(a);
      for (const Node_index b : k_cliques[i])
        if (a < b) com_links.emplace_back(a, b);
    }
  }
  std::vector<Community> found;
  for (std::size_t com = 0; com < run.coms.size(); ++com) {
    found.push_back({literal::Sets_of(run.coms)[com], {}});
    K_clique_com_links(run.k_cliques, run.com_k_cliques).For_each(com, [&](Index_pair link) {
      found.back().second.emplace_back(link.first, link.second);
    });
  }
  ASSERT_EQ(found, expected);
}

Weighted_links Random_links(std::mt19937& random, Node_index nodes,
                            const std::vector<double>& weights) {
  Weighted_links links;
  const std::size_t share = 3 + random() % 8;
  for (Node_index a = 1; a <= nodes; ++a)
    for (Node_index b = a + 1; b <= nodes; ++b)
      if (random() % 10 < share) links[{a, b}] = weights[random() % weights.size()];
  return links;
}

TEST(Intensity, EqualsTheLiteralMethod) {
  constexpr double infinity = std::numeric_limits<double>::infinity();
  struct Case {
    std::vector<double> weights;
    std::vector<double> thresholds;  ///< some are met exactly by sets of equal weights
  };
  for (const Case& c : std::vector<Case>{
           {{1.0, 2.0, 4.0}, {1.0, 2.0, std::sqrt(8.0), 4.0}},
           // Added up in another order, these sums fall on the other side of the threshold.
           {{0.71}, {0.71}},
           {{2.94}, {2.94}},
           {{0.1, 0.2, 0.3, 0.7, 1.1}, {0.0, 0.1, 0.25, 0.3, 1e-300, 1e300}},
           {{-1.0, -1.0, 2.0}, {0.0, 1.5, 2.0}},
           {{-1.0, 0.0, 1.0, 2.0, infinity}, {0.0, 1.0, 1.5, infinity}}}) {
    std::mt19937 random(1);
    const std::uint32_t small = literal::Samples(200);
    for (std::uint32_t round = 0; round < small + 8; ++round) {
      const bool large = round >= small;
      const auto nodes = static_cast<Node_index>((large ? 8 : 3) + random() % 8);
      const Weighted_links links = Random_links(random, nodes, c.weights);
      Intensity_run run(links);
      const unsigned least_k = large ? 6 : 3;
      for (unsigned k = least_k; k <= least_k + 2; ++k)
        for (const double threshold : c.thresholds) Compare(run, links, k, threshold);
      if (HasFatalFailure()) FAIL() << c.weights.front() << " and others, round " << round;
    }
  }
}

/// Weights that differ everywhere, in graphs of a few large cliques: branches are cut, narrowed and
/// taken whole at every depth, and k-cliques share subsets that pass beside some that don't.
TEST(Intensity, EqualsTheLiteralMethodInLargeCliques) {
  std::mt19937 random(1);
  for (unsigned round = 0; round < literal::Samples(60); ++round) {
    std::lognormal_distribution<double> weight(0.0, round % 2 == 0 ? 0.3 : 1.0);
    Weighted_links links;
    const Node_index nodes = 10 + round % 4;
    for (Node_index a = 1; a <= nodes; ++a)
      for (Node_index b = a + 1; b <= nodes; ++b)
        if (random() % 12 > 0) links[{a, b}] = weight(random) * (a % 4 == 0 ? 0.5 : 1.0);
    if (round % 6 == 5) links[{1, 2}] = -1.0;
    Intensity_run run(links);
    for (unsigned k = 7; k >= 4; --k)
      for (const double threshold : {0.5, 0.9, 1.2}) Compare(run, links, k, threshold);
    if (HasFatalFailure()) FAIL() << "round " << round;
  }
}

/// Cliques of consecutive nodes, each from its first node to its last; all links weigh the same.
Weighted_links Cliques(const std::vector<std::pair<Node_index, Node_index>>& ranges,
                       double weight) {
  Weighted_links links;
  for (const auto& [first, last] : ranges)
    for (Node_index a = first; a <= last; ++a)
      for (Node_index b = a + 1; b <= last; ++b) links[{a, b}] = weight;
  return links;
}

/// Of the 2,200 million subsets of 16 nodes those in the strong core pass.
TEST(KCliques, HopelessBranchesAreCut) {
  Weighted_links links = Cliques({{1, 34}}, 0.9);
  for (auto& [link, weight] : links)
    if (link.first % 2 == 0 && link.second % 2 == 0) weight = 4.0;
  Intensity_run run(links);
  run.At(16, 3.9);
  EXPECT_EQ(run.k_cliques.size(), 17U);
}

/// A strong clique of 20 nodes, a weak one of 40, and one with a single strong link for each node.
TEST(KCliques, NodesWithoutHopeAreLeftOut) {
  Weighted_links links = Cliques({{1, 20}, {20, 59}, {60, 69}}, 0.5);
  for (auto& [link, weight] : links)
    if (link.second <= 20 || (link.first >= 60 && link.second == link.first + 1)) weight = 2.0;
  Intensity_run run(links);
  const Hopeful_nodes hopeful(run.weighted, 8, literal::Log_of_power(1.5, 8));
  for (Node_index node = 1; node <= 69; ++node) EXPECT_EQ(hopeful[node], node <= 20) << node;
  const double no_threshold = literal::Log_of_power(0.0, 11);
  const Hopeful_nodes in_cliques(run.weighted, 11, no_threshold);
  for (Node_index node = 1; node <= 69; ++node) EXPECT_EQ(in_cliques[node], node < 60) << node;
}

TEST(KCliques, ManyOfThem) {
  constexpr std::size_t subsets_of_9 = 48620;
  for (const Node_index second_begins : {12U, 11U}) {
    Intensity_run run(Cliques({{1, 18}, {second_begins, 28}}, 2.0));
    run.At(9, 1.0);
    const bool apart = second_begins == 12;
    EXPECT_EQ(run.coms.size(), apart ? 2U : 1U);
    EXPECT_EQ(run.coms[0].size(), apart ? 18U : 28U);
    EXPECT_EQ(run.com_k_cliques[0].size(), apart ? subsets_of_9 : 2 * subsets_of_9);
  }
}

TEST(KCliques, MissingLink) {
  Weighted_links links = Cliques({{1, 4}}, 1.0);
  links.erase({2, 3});
  const Index_links fewer = Index_links_of(links);
  const std::string text = "ERROR: Get_sub_links_and_thresh_abs: missing link.\n";
  for (const auto& set : std::vector<std::vector<Node_index>>{{1, 2, 3}, {1, 2, 9}, {8, 9}}) {
    const Clique_vector cliques = literal::Rows_of({Set(set.begin(), set.end())});
    EXPECT_EQ(Thrown_message([&] { const Weighted_cliques weighted(cliques, fewer); }), text);
    const Link_logs logs(fewer);
    EXPECT_EQ(Thrown_message([&] { Coms_from_k_cls_sub::Check_intersection(set, logs, 0.5); }),
              text);
  }
}

TEST(ThreadsKCliques, ReportAndStop) {
  Intensity_run run(Cliques({{1, 4}, {5, 44}, {45, 47}}, 2.0));
  for (const std::uint32_t k : {41U, 4294967295U}) {
    run.At(k, 0.3);
    EXPECT_EQ(Read_state_report(),
              "_______________________________\n Altogether 0  k-cliques found.\n");
  }
  run.At(39, 0.3);
  EXPECT_EQ(Read_state_report(),
            "___________________________________________________\n"
            " Extracting communities from the k-cliques at k=39,\n"
            " and a link weight intensity threshlod I=0.300000:\n"
            " 1 of 40 k-cliques to do (97.50% done)\n");

  // The middle clique has 137846528820 subsets of 20 nodes.
  std::thread watcher([] {
    while (Read_state_report() !=
           "__________________________________________________\n"
           " Generating k-cliques at k=20,\n"
           " and a link weight intensity threshold I=2.000000:\n"
           " 2 of 3 cliques to do (33.33% done)\n")
      std::this_thread::yield();
    Stop_process();
  });
  EXPECT_THROW(run.At(20, 2.0), std::logic_error);
  watcher.join();
  Reset_stop_process();
  EXPECT_EQ(Read_state_report(), " Process stopped by user.\n");
}

/// The clique at hand counts as remaining, so the work is never told to be done while it goes on;
/// here nearly all nodes stand behind the only clique.
TEST(ThreadsKCliques, ProgressNeverReachesTheWhole) {
  const Index_links links({{1, 2}, {1, 3}, {2, 3}}, {2.0, 2.0, 2.0}, 3000000);
  const Clique_vector maximal = literal::Rows_of({{1, 2, 3}});
  const Weighted_cliques cliques(maximal, links);
  std::atomic<bool> ended = false;
  std::thread generation([&] {
    K_cliques k_cliques(3);
    Generate_k_cls_from_cls_ec(cliques, k_cliques, 3, 1.0);
    EXPECT_EQ(k_cliques.size(), 1U);
    ended = true;
  });
  while (!ended) EXPECT_EQ(Read_state_report().find("100.00% done"), std::string::npos);
  generation.join();
}

}  // namespace
}  // namespace gns
