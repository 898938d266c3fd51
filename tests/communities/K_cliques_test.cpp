#include <gtest/gtest.h>

#include <algorithm>
#include <atomic>
#include <bit>
#include <cmath>
#include <random>
#include <stdexcept>
#include <string>
#include <thread>
#include <vector>

#include "Weighted_sample.h"
#include "communities/K_clique_communities.h"
#include "communities/K_clique_generation.h"
#include "control/Clique_find_ext_cont.h"
#include "foundation/Errors.h"

namespace gns {
namespace {

/// Cliques of consecutive nodes, each from its first node to its last; all links weigh the same.
literal::Links Cliques(const std::vector<std::pair<Node_index, Node_index>>& ranges,
                       double weight) {
  literal::Links links;
  for (const auto& [first, last] : ranges)
    for (Node_index a = first; a <= last; ++a)
      for (Node_index b = a + 1; b <= last; ++b) links[{a, b}] = weight;
  return links;
}

/// Counts the k-subsets of one clique whose geometric mean exceeds the threshold.
std::size_t Count_by_definition(const literal::Links& links, unsigned nodes, unsigned k,
                                double threshold) {
  std::size_t count = 0;
  for (std::uint32_t subset = 0; subset < (std::uint32_t{1} << nodes); ++subset) {
    if (std::popcount(subset) != static_cast<int>(k)) continue;
    double product = 1.0;
    for (const auto& [link, weight] : links)
      if ((subset >> (link.first - 1) & subset >> (link.second - 1) & 1) != 0) product *= weight;
    if (std::pow(product, 2.0 / (k * (k - 1.0))) > threshold) ++count;
  }
  return count;
}

TEST(KCliques, AreThoseWhoseGeometricMeanExceedsTheThreshold) {
  std::mt19937 random(7);
  for (const double deviation : {1.0, 0.05}) {
    for (const double mean : {-0.7, 0.0, 0.2, 0.3, 0.5, 0.7, 1.1}) {
      const double threshold = std::exp(mean * deviation);
      std::lognormal_distribution<double> weight(0.0, deviation);
      literal::Links links = Cliques({{1, 14}}, 0.0);
      for (auto& link : links) link.second = weight(random);
      const Weighted_sample sample(links, 14);
      const Weighted_cliques cliques(sample.cliques, sample.index_links);
      for (const unsigned k : {3U, 5U, 7U, 10U, 13U, 14U}) {
        K_cliques k_cliques(k);
        Generate_k_cls_from_cls_ec(cliques, k_cliques, k, threshold);
        EXPECT_EQ(k_cliques.size(), Count_by_definition(links, 14, k, threshold))
            << "k=" << k << " I=" << threshold;
      }
    }
  }
}

/// Of the 2,200 million subsets of 16 nodes those in the strong core pass.
TEST(KCliques, HopelessBranchesAreCut) {
  literal::Links links = Cliques({{1, 34}}, 0.9);
  for (auto& [link, weight] : links)
    if (link.first % 2 == 0 && link.second % 2 == 0) weight = 4.0;
  const Weighted_sample sample(links, 34);
  K_cliques k_cliques(16);
  Generate_k_cls_from_cls_ec(Weighted_cliques(sample.cliques, sample.index_links), k_cliques, 16,
                             3.9);
  EXPECT_EQ(k_cliques.size(), 17U);
}

struct Pair_of_cliques {
  Node_index second_begins;
  std::size_t communities;
};

/// More shared subsets than are held in memory at a time.
TEST(KCliqueCommunities, ManyKCliques) {
  constexpr std::size_t subsets_of_9 = 48620;
  for (const auto& [second_begins, communities] :
       {Pair_of_cliques{19, 2}, Pair_of_cliques{12, 2}, Pair_of_cliques{11, 1}}) {
    const Node_index last = second_begins + 17;
    const Weighted_sample sample(Cliques({{1, 18}, {second_begins, last}}, 2.0), last);
    const Weighted_cliques cliques(sample.cliques, sample.index_links);
    K_cliques k_cliques(9);
    Generate_k_cls_from_cls_ec(cliques, k_cliques, 9, 1.0);
    EXPECT_EQ(k_cliques.size(), 2 * subsets_of_9);
    Row_array<Node_index> coms;
    Row_array<K_clique_index> com_k_cliques;
    Intensity_coms_from_k_cliques_ec(k_cliques, coms, com_k_cliques, cliques.Logs(), 1.0);
    ASSERT_EQ(coms.size(), communities);
    EXPECT_EQ(coms[0].size(), communities == 2 ? 18 : last);
    EXPECT_EQ(com_k_cliques[0].size(), communities == 2 ? subsets_of_9 : 2 * subsets_of_9);
    EXPECT_EQ(com_k_cliques.Values().size(), 2 * subsets_of_9);
  }
}

TEST(KCliques, ACliqueThatLacksALink) {
  const Weighted_sample sample(Cliques({{1, 4}}, 1.0), 4);
  literal::Links fewer = sample.links;
  fewer.erase({2, 3});
  const Weighted_sample other(fewer, 4);
  const std::string text = "ERROR: Get_sub_links_and_thresh_abs: missing link.\n";
  try {
    const Weighted_cliques cliques(sample.cliques, other.index_links);
    ADD_FAILURE() << "nothing thrown";
  } catch (const Xerror_msg& error) {
    EXPECT_EQ(error.what(), text);
  }
  const Link_logs logs(other.index_links);
  const std::vector<Node_index> set = {1, 2, 3};
  EXPECT_THROW(static_cast<void>(Coms_from_k_cls_sub::Check_intersection(set, logs, 0.5)),
               Xerror_msg);
}

class ThreadsKCliques : public ::testing::Test {
 protected:
  ~ThreadsKCliques() override {
    Reset_stop_process();
    external_control::CURRENT_STATE_REPORT = std::string();
  }
};

TEST_F(ThreadsKCliques, ReportAndStop) {
  const Weighted_sample sample(Cliques({{1, 4}, {5, 44}, {45, 47}}, 2.0), 47);
  const Weighted_cliques cliques(sample.cliques, sample.index_links);
  K_cliques k_cliques(0);
  Row_array<Node_index> coms;
  Row_array<K_clique_index> com_k_cliques;

  for (const std::uint32_t k : {41U, 4294967295U}) {
    external_control::CURRENT_STATE_REPORT = std::string();
    Generate_k_cls_from_cls_ec(cliques, k_cliques, k, 0.3);
    Intensity_coms_from_k_cliques_ec(k_cliques, coms, com_k_cliques, cliques.Logs(), 0.3);
    EXPECT_EQ(Read_state_report(),
              "_______________________________\n Altogether 0  k-cliques found.\n");
    EXPECT_TRUE(coms.empty());
  }
  Generate_k_cls_from_cls_ec(cliques, k_cliques, 39, 0.3);
  Intensity_coms_from_k_cliques_ec(k_cliques, coms, com_k_cliques, cliques.Logs(), 0.3);
  EXPECT_EQ(Read_state_report(),
            "___________________________________________________\n"
            " Extracting communities from the k-cliques at k=39,\n"
            " and a link weight intensity threshlod I=0.300000:\n"
            " 1 of 40 k-cliques to do (97.50% done)\n");

  // The middle clique has 137846528820 subsets of 20 nodes.
  const std::string expected =
      "__________________________________________________\n"
      " Generating k-cliques at k=20,\n"
      " and a link weight intensity threshold I=2.000000:\n"
      " 2 of 3 cliques to do (33.33% done)\n";
  std::thread watcher([&] {
    while (Read_state_report() != expected) std::this_thread::yield();
    Stop_process();
  });
  EXPECT_THROW(Generate_k_cls_from_cls_ec(cliques, k_cliques, 20, 2.0), std::logic_error);
  watcher.join();
  EXPECT_EQ(Read_state_report(), " Process stopped by user.\n");
}

/// The clique at hand counts as remaining, so the work is never told to be done while it goes on;
/// here nearly all nodes stand behind the only clique.
TEST_F(ThreadsKCliques, ProgressNeverReachesTheWhole) {
  const Weighted_sample sample(Cliques({{1, 3}}, 2.0), 3000000);
  const Weighted_cliques cliques(sample.cliques, sample.index_links);
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
