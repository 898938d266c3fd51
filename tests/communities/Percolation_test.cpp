#include "communities/Percolation.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <numeric>
#include <sstream>
#include <stdexcept>

#include "Literal_percolation.h"
#include "Random_graphs.h"
#include "communities/Coms_funcs.h"
#include "control/Clique_find_ext_cont.h"

namespace gns {
namespace {

using literal::Clique_input;
using literal::Set;

void Expect_like_literal_percolation(const Communities& communities, const Clique_input& input,
                                     std::uint32_t k) {
  const literal::Percolation_at_k literal(input, k);
  ASSERT_EQ(communities.size(), literal.coms.size());
  ASSERT_EQ(communities.exact_com_count, literal.exact_com_count);
  for (std::size_t com = 0; com < literal.coms.size(); ++com) {
    const auto& [nodes, links, clique_list, appr] = literal.coms[com];
    ASSERT_TRUE(std::ranges::equal(communities.coms[com], nodes)) << com;
    ASSERT_TRUE(std::ranges::equal(communities.com_cliques[com], clique_list)) << com;
    ASSERT_TRUE(std::ranges::equal(communities.com_links[com], links,
                                   [](const Index_pair& pair, const auto& link) {
                                     return pair.first == link.first && pair.second == link.second;
                                   }))
        << com;
  }
}

/// Asks one object for the communities at each k in the order given.
void Expect_like_literal_percolation(const Clique_input& input,
                                     const std::vector<std::uint32_t>& ks, bool nested) {
  const Clique_vector cliques = literal::Rows_of(input.cliques);
  Percolation percolation(cliques, input.exact_clique_count, nested);
  for (const std::uint32_t k : ks) {
    Expect_like_literal_percolation(percolation.At(k), input, k);
    if (::testing::Test::HasFatalFailure()) FAIL() << "k=" << k;
  }
}

/// From one above the largest clique down to 0.
std::vector<std::uint32_t> All_k_descending(const Clique_input& input) {
  std::vector<std::uint32_t> ks(Max_clique_size_in_cl_vec(literal::Rows_of(input.cliques)) +
                                std::size_t{2});
  std::iota(ks.rbegin(), ks.rend(), 0U);
  return ks;
}

/// The cliques of a random graph; behind them, sets that stand for approximate cliques. Unless
/// `nested`, no set lies inside another.
Clique_input Random_input(std::uint32_t seed, bool nested) {
  literal::Random random(seed);
  const literal::Graph graph = literal::Random_graph(seed);
  std::vector<Set> cliques = literal::Exact_search(graph).Found().cliques;
  std::size_t exact_count = cliques.size();
  for (std::uint32_t left = random.Below(6); left > 0 && graph.size() > 3; --left) {
    const auto node_count = static_cast<std::uint32_t>(graph.size());
    const Set extra = random.Nodes(node_count, random.Between(3, 9));
    if (nested || std::ranges::none_of(cliques, [&](const Set& clique) {
          return std::ranges::includes(clique, extra) || std::ranges::includes(extra, clique);
        }))
      cliques.push_back(extra);
  }
  if (random.Chance(30)) exact_count = random.Below(static_cast<std::uint32_t>(exact_count) + 1);
  return literal::Input_of(cliques, exact_count);
}

std::vector<std::uint32_t> Disordered(std::vector<std::uint32_t> ks, std::uint32_t seed) {
  literal::Random random(seed);
  ks.insert(ks.end(), ks.begin(), ks.end());
  for (std::size_t i = ks.size(); i > 1; --i)
    std::swap(ks[i - 1], ks[random.Below(static_cast<std::uint32_t>(i))]);
  return ks;
}

TEST(Percolation, EqualsLiteralPercolationInAnyOrderOfK) {
  for (std::uint32_t seed = 0; seed < 2000; ++seed) {
    const bool nested = seed % 4 == 3;
    const Clique_input input = Random_input(seed, nested);
    std::vector<std::uint32_t> ks = All_k_descending(input);
    if (seed % 3 == 1) std::ranges::reverse(ks);
    if (seed % 3 == 2) ks = Disordered(std::move(ks), seed);
    Expect_like_literal_percolation(input, ks, nested);
    if (HasFatalFailure()) FAIL() << "seed " << seed;
  }
}

TEST(Percolation, KnownCliques) {
  const std::vector<std::vector<Set>> cases = {
      {},
      {{1, 2, 3}},
      {{1, 2, 3}, {2, 3, 4}},
      {{1, 2, 3}, {3, 4, 5}},
      {{1, 2, 3, 4}, {3, 4, 5}, {5, 6, 7}},
      // Two that share k - 2 nodes, connected through a third; and a node in many communities.
      {{1, 2, 3, 4}, {3, 4, 5, 6}, {2, 3, 4, 5}},
      {{1, 2, 3}, {1, 4, 5}, {1, 6, 7}},
  };
  for (const std::vector<Set>& cliques : cases) {
    for (std::size_t exact_count = 0; exact_count <= cliques.size(); ++exact_count) {
      const Clique_input input = literal::Input_of(cliques, exact_count);
      Expect_like_literal_percolation(input, All_k_descending(input), false);
    }
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
  Expect_like_literal_percolation(literal::Input_of(cliques, 2), {271, 270, 269, 258, 66, 64},
                                  false);
}

/// A long chain of cliques must not exhaust the stack.
TEST(Percolation, LongChains) {
  Clique_vector cliques;
  constexpr Node_index length = 300000;
  for (Node_index node = 1; node <= length; ++node)
    cliques.push_back(std::vector<Node_index>{node, node + 1, node + 2});
  Percolation percolation(cliques, length, false);
  const Communities& communities = percolation.At(3);
  ASSERT_EQ(communities.size(), 1U);
  EXPECT_EQ(communities.coms[0].size(), length + 2);
  EXPECT_EQ(communities.com_links[0].size(), 2 * length + 1);
}

/// Searches of other kinds can record a clique inside another one. It shares enough nodes to join
/// although it has fewer than k itself.
TEST(Percolation, NestedCliques) {
  const std::vector<std::vector<Set>> cases = {
      {{1, 2, 3, 4}, {2, 3, 4}},
      {{2, 3, 4}, {1, 2, 3, 4}},
      {{2, 3, 4}, {1, 2, 3, 4}, {2, 3, 4, 5}, {6, 7, 8}, {6, 7, 8, 9, 10}},
      {{1, 2, 3, 4, 5}, {1, 2, 3}, {2, 3, 4, 5}, {1, 2, 6, 7}, {2, 6, 7}},
  };
  for (const std::vector<Set>& cliques : cases) {
    const Clique_input input = literal::Input_of(cliques, cliques.size());
    std::vector<std::uint32_t> ks = All_k_descending(input);
    Expect_like_literal_percolation(input, ks, true);
    std::ranges::reverse(ks);
    Expect_like_literal_percolation(input, ks, true);
  }
}

TEST(Percolation, PollsOnlyWhereTheHostWantsIt) {
  Clique_vector cliques = literal::Rows_of({{1, 2, 3}});
  Percolation percolation(cliques, 1, false);
  Stop_process();
  EXPECT_EQ(percolation.At(3).size(), 1U);
  external_control::STOP_INSIDE_LONG_STAGES = true;
  EXPECT_THROW(percolation.At(3), std::logic_error);
  external_control::STOP_INSIDE_LONG_STAGES = false;
  Reset_stop_process();
}

TEST(ComsFuncs, CommunitiesAtOneK) {
  for (std::uint32_t seed = 0; seed < 100; ++seed) {
    const Clique_input input = Random_input(seed, seed % 2 == 0);
    const Clique_vector cliques = literal::Rows_of(input.cliques);
    Communities found;
    found.coms.push_back(std::vector<Node_index>{1});
    Coms_from_appr_ovlp_matr(found.coms, found.com_links, found.com_cliques, cliques,
                             Overlap_matrix(cliques), 3 + seed % 3, input.exact_clique_count,
                             found.exact_com_count);
    Expect_like_literal_percolation(found, input, 3 + seed % 3);
  }
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
  struct Case {
    std::uint32_t k;
    std::uint32_t max_clique_size;
    std::string text;
  };
  for (const Case& c : std::vector<Case>{
           {5, 5, std::string(49, '_') + "\n Extracting communities at k=5 (completed 16.67%)\n"},
           {3, 5, std::string(49, '_') + "\n Extracting communities at k=3 (completed 83.33%)\n"},
           {10, 31,
            std::string(50, '_') + "\n Extracting communities at k=10 (completed 74.14%)\n"},
       }) {
    std::ostringstream text;
    Coms_report_sub::Report_com_export(c.k, c.max_clique_size, text);
    EXPECT_EQ(text.str(), c.text);
  }
  EXPECT_EQ(Coms_report_sub::Num_width(0), 1U);
  EXPECT_EQ(Coms_report_sub::Num_width(4294967295U), 10U);
  EXPECT_EQ(Max_clique_size_in_cl_vec({}), 0U);
  EXPECT_EQ(Max_clique_size_in_cl_vec(literal::Rows_of({{1, 2, 3}, {2, 3, 4, 5}, {7}})), 4U);
}

}  // namespace
}  // namespace gns
