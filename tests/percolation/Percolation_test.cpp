#include "percolation/Percolation.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <numeric>
#include <set>
#include <sstream>
#include <stdexcept>
#include <utility>
#include <vector>

#include "Literal_search.h"
#include "Odd_stream.h"
#include "Processor_level_turn.h"
#include "Random_graphs.h"
#include "control/Clique_find_ext_cont.h"
#include "percolation/Coms_funcs.h"

namespace gns {
namespace {

using literal::Set;

/// Percolation at one k on the overlap matrix, by recursion.
struct Percolation_at_k {
  struct Community {
    Set nodes;
    std::set<std::pair<Node_index, Node_index>> links;
    std::vector<Clique_index> cliques;
    bool appr = false;
  };
  std::vector<Community> coms;
  std::size_t exact_com_count = 0;

  Percolation_at_k(const std::vector<Set>& all_cliques, std::size_t exact_clique_count,
                   std::uint32_t at_k)
      : cliques(all_cliques), exact_count(exact_clique_count), k(at_k) {
    for (Clique_index i = 0; i < cliques.size(); ++i) {
      if (k == 0 || claimed.contains(i) || cliques[i].size() < k) continue;
      coms.emplace_back();
      Extend(i, coms.back());
    }
    const auto appr =
        std::stable_partition(coms.begin(), coms.end(), [](const auto& com) { return !com.appr; });
    exact_com_count = static_cast<std::size_t>(appr - coms.begin());
  }

 private:
  void Extend(Clique_index from, Community& com) {
    std::vector<Clique_index> found;
    for (const auto& [clique, overlap] : matrix[from])
      if (overlap >= k - 1 && claimed.insert(clique).second) found.push_back(clique);
    for (const Clique_index clique : found) Add(clique, com);
    for (const Clique_index clique : found) Extend(clique, com);
  }

  void Add(Clique_index clique, Community& com) const {
    com.cliques.push_back(clique);
    com.appr = com.appr || clique >= exact_count;
    for (const Node_index a : cliques[clique]) {
      com.nodes.insert(a);
      for (const Node_index b : cliques[clique])
        if (a < b) com.links.emplace(a, b);
    }
  }

  const std::vector<Set>& cliques;
  const literal::Matrix matrix = literal::Shared_nodes(cliques);
  std::size_t exact_count;
  std::uint32_t k;
  std::set<Clique_index> claimed;
};

struct Clique_input {
  std::vector<Set> cliques;
  std::size_t exact_count;
};

void Expect_like_literal(const Communities& communities, const Clique_input& input,
                         std::uint32_t k) {
  const Percolation_at_k literal(input.cliques, input.exact_count, k);
  ASSERT_EQ(communities.size(), literal.coms.size()) << k;
  ASSERT_EQ(communities.exact_com_count, literal.exact_com_count) << k;
  const auto same_link = [](const Index_pair& pair, const auto& link) {
    return pair.first == link.first && pair.second == link.second;
  };
  for (std::size_t com = 0; com < literal.coms.size(); ++com) {
    const auto& [nodes, links, cliques, appr] = literal.coms[com];
    ASSERT_TRUE(std::ranges::equal(communities.coms[com], nodes)) << k;
    ASSERT_TRUE(std::ranges::equal(communities.com_cliques[com], cliques)) << k;
    ASSERT_TRUE(std::ranges::equal(communities.com_links[com], links, same_link)) << k;
  }
}

/// Asks one object for the communities at each k in the order given, and another one that knows the
/// smallest, and gives up its lists now and then.
void Expect_like_literal(const Clique_input& input, const std::vector<std::uint32_t>& ks,
                         bool nested) {
  const Clique_vector cliques = literal::Rows_of(input.cliques);
  for (const bool last_is_known : {false, true}) {
    Percolation percolation(cliques, static_cast<std::uint32_t>(input.exact_count), nested);
    if (last_is_known) percolation.Walk().Expect_last(std::max(1U, std::ranges::min(ks)));
    for (const std::uint32_t k : ks) {
      Expect_like_literal(*percolation.At(k), input, k);
      if (::testing::Test::HasFatalFailure()) return;
      if (last_is_known && k % 3 == 0) percolation.Walk().Give_up_lists();
    }
  }
}

/// The cliques of a random graph; behind them, sets that stand for approximate cliques. With
/// `nested`, sets that lie inside others, or repeat them, stand among them.
Clique_input Random_input(literal::Random& random, std::uint32_t seed, bool nested) {
  const literal::Graph graph = literal::Random_graph(seed);
  const auto node_count = static_cast<std::uint32_t>(graph.size());
  Clique_input input = {literal::Cliques_of(graph), 0};
  input.exact_count = input.cliques.size();
  for (std::uint32_t left = random.Below(6); left > 0 && node_count > 3; --left) {
    const Set extra = random.Nodes(node_count, random.Between(3, 9));
    if (nested || std::ranges::none_of(input.cliques, [&](const Set& clique) {
          return std::ranges::includes(clique, extra) || std::ranges::includes(extra, clique);
        }))
      input.cliques.push_back(extra);
  }
  for (std::uint32_t left = nested ? random.Below(6) : 0; left > 0 && !input.cliques.empty();
       --left) {
    const auto count = static_cast<std::uint32_t>(input.cliques.size());
    Set inner = input.cliques[random.Below(count)];
    if (inner.size() > 3 || random.Chance(30)) inner.erase(inner.begin());
    input.cliques.insert(input.cliques.begin() + random.Below(count + 1), inner);
  }
  if (random.Chance(30))
    input.exact_count = random.Below(static_cast<std::uint32_t>(input.exact_count) + 1);
  return input;
}

TEST(Percolation, EqualsLiteralPercolationInAnyOrderOfK) {
  for (std::uint32_t seed = 0; seed < literal::Samples(2000); ++seed) {
    SCOPED_TRACE(seed);
    const Processor_level_turn level(seed / 12);
    literal::Random random(seed);
    const bool nested = seed % 4 == 3;
    const Clique_input input = Random_input(random, seed, nested);
    const Clique_vector rows = literal::Rows_of(input.cliques);
    const std::uint32_t largest = Max_clique_size_in_cl_vec(rows);
    std::vector<std::uint32_t> ks(largest + std::size_t{2});
    std::iota(ks.rbegin(), ks.rend(), 0U);
    if (seed % 3 == 1) std::ranges::reverse(ks);
    for (std::uint32_t& k : ks)
      if (seed % 3 == 2) k = random.Below(largest + 2);
    Expect_like_literal(input, ks, nested);

    Communities found;
    found.coms = literal::Rows_of({{1}});  // to be cleared
    Coms_from_appr_ovlp_matr(found.coms, found.com_links, found.com_cliques, rows,
                             Overlap_matrix(rows), ks.back(),
                             static_cast<std::uint32_t>(input.exact_count), found.exact_com_count);
    Expect_like_literal(found, input, ks.back());
    if (HasFatalFailure()) return;
  }
}

/// So many nodes elsewhere that their ranks take more than 16 bits.
TEST(Percolation, EqualsLiteralPercolationAmongManyNodes) {
  constexpr Node_index triangles = 22000;
  for (std::uint32_t seed = 0; seed < 6; ++seed) {
    literal::Random random(seed);
    Clique_input input = Random_input(random, seed, seed % 2 == 1);
    for (Node_index node = 100; node < 100 + 3 * triangles; node += 3)
      input.cliques.push_back({node, node + 1, node + 2});
    Expect_like_literal(input, {6, 5, 4, 3}, seed % 2 == 1);
    if (HasFatalFailure()) FAIL() << seed;
  }
}

TEST(Percolation, CliquesOfHundredsOfNodes) {
  Set first;
  for (Node_index node = 1; node <= 270; ++node) first.insert(node);
  std::vector<Set> cliques(3, first);
  for (Node_index i = 0; i < 3; ++i) {
    cliques[i].erase(i + 1);
    cliques[i].insert(300 + i);
  }
  Expect_like_literal({cliques, 2}, {271, 270, 269, 258, 66, 64}, false);
}

/// A long chain of cliques must not exhaust the stack. Polls for a stop at once only.
TEST(Percolation, LongChains) {
  Clique_vector cliques;
  constexpr Node_index length = 300000;
  for (Node_index node = 1; node <= length; ++node)
    cliques.push_back(std::vector<Node_index>{node, node + 1, node + 2});
  Percolation percolation(cliques, length, false);
  Stop_process();
  const Communities communities = *percolation.At(3);
  ASSERT_EQ(communities.size(), 1U);
  EXPECT_EQ(communities.coms[0].size(), length + 2);
  EXPECT_EQ(communities.com_links[0].size(), 2 * length + 1);
  Stop_at_once();
  EXPECT_THROW(percolation.At(3), std::logic_error);
  Reset_stop_process();
}

/// Thousands of cliques of many sizes that all share the same two nodes: neighbours of the first.
/// A chain of cliques that comes together at one k, and has more links to be merged than are held
/// at a time, some of them from communities of the k before.
TEST(Percolation, GiantCommunityAtOnce) {
  constexpr Node_index length = 310500;
  constexpr Node_index size = 15;
  constexpr Node_index step = 1000;  // from a clique with a node more to the next
  Clique_vector cliques;
  std::vector<std::pair<Node_index, Node_index>> links;
  for (Node_index node = 1; node <= length; ++node) {
    const bool is_large = node % step == 0;
    std::vector<Node_index> clique(is_large ? size + 1 : size);
    std::iota(clique.begin(), clique.end(), node);
    if (node % step != 1 || node == 1) cliques.push_back(clique);
    for (Node_index i = 1; i < clique.size(); ++i) links.emplace_back(node, clique[i]);
  }
  for (Node_index node = length + 1; node + 1 < length + size; ++node)
    for (Node_index other = node + 1; other < length + size; ++other)
      links.emplace_back(node, other);

  Percolation percolation(cliques, length, false);
  ASSERT_EQ(percolation.At(size + 1)->size(), length / step);
  const auto found = percolation.At(size);
  ASSERT_EQ(found->size(), 1U);
  EXPECT_EQ(found->coms[0].size(), length + size - 1);
  EXPECT_TRUE(
      std::ranges::equal(found->com_links[0], links, [](const Index_pair& a, const auto& b) {
        return a.first == b.first && a.second == b.second;
      }));
}

TEST(Percolation, ManyNeighboursAscend) {
  Clique_vector cliques;
  Node_index free = 3;
  for (Clique_index clique = 0; clique < 20000; ++clique) {
    std::vector<Node_index> members = {1, 2};
    for (auto left = 1 + clique * 7 % 5; left > 0; --left) members.push_back(free++);
    cliques.push_back(members);
  }
  std::vector<Clique_index> all(cliques.size());
  std::iota(all.begin(), all.end(), 0U);
  Percolation percolation(cliques, static_cast<std::uint32_t>(cliques.size()), false);
  const Communities communities = *percolation.At(3);
  ASSERT_EQ(communities.size(), 1U);
  EXPECT_TRUE(std::ranges::equal(communities.com_cliques[0], all));
}

TEST(ComsFuncs, NoRowsNoCommunities) {
  const Clique_vector cliques = literal::Rows_of({{1, 2, 3}});
  Communities found;
  found.coms = cliques;  // to be cleared
  found.exact_com_count = 1;
  Coms_from_appr_ovlp_matr(found.coms, found.com_links, found.com_cliques, cliques,
                           Overlap_matrix(), 3, 1, found.exact_com_count);
  EXPECT_TRUE(found.coms.empty() && found.com_links.empty() && found.com_cliques.empty());
  EXPECT_EQ(found.exact_com_count, 0U);
}

TEST(ComsFuncs, ReportAndSizes) {
  std::ostringstream text = Odd_stream();
  Coms_report_sub::Report_com_export(5, 5, text);
  Coms_report_sub::Report_com_export(10, 31, text);
  EXPECT_EQ(text.str(),
            std::string(49, '_') + "\n Extracting communities at k=5 (completed 16.67%)\n" +
                std::string(50, '_') + "\n Extracting communities at k=10 (completed 74.14%)\n");
  EXPECT_EQ(Max_clique_size_in_cl_vec({}), 0U);
  EXPECT_EQ(Max_clique_size_in_cl_vec(literal::Rows_of({{1, 2, 3}, {2, 3, 4, 5}, {7}})), 4U);
}

}  // namespace
}  // namespace gns
