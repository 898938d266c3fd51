#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <sstream>
#include <string>
#include <vector>

#include "Literal_search.h"
#include "Odd_stream.h"
#include "Random_graphs.h"
#include "Thrown_message.h"
#include "control/Clique_find_ext_cont.h"
#include "search/Clique_reports.h"
#include "search/Core_cliques.h"
#include "search/Queue_search.h"

namespace gns {
namespace {

using literal::Set;

/// An attempt that is to come: the node, whether it runs over, what it finds, and what the state
/// report ends in at that time.
struct Planned_attempt {
  Node_index node;
  bool fails;
  std::vector<Set> finds;
  std::string report;
};

/// A search that goes by a plan.
class Planned_search : public Node_search {
 public:
  explicit Planned_search(std::vector<Planned_attempt> plan) : plan_(std::move(plan)) {}
  ~Planned_search() override { EXPECT_EQ(next_, plan_.size()); }

  void Find(Node_index node, Attempt& attempt, Clique_vector& cliques) override {
    ASSERT_LT(next_, plan_.size());
    const Planned_attempt& planned = plan_[next_++];
    EXPECT_EQ(node, planned.node);
    EXPECT_EQ(Read_state_report(), "_______\nT0.125:\n " + planned.report + "% done)\n");
    for (const Set& set : planned.finds)
      cliques.push_back(std::vector<Node_index>(set.begin(), set.end()));
    if (planned.fails) time += limit.seconds * 2;
    EXPECT_EQ(attempt.Runs_over(), planned.fails);
  }
  void Finish(Node_index node) override { finished.push_back(node); }

  double time = 100.0;
  Time_limit limit{0.125, [this] { return time; }};
  std::vector<Node_index> finished;

 private:
  std::vector<Planned_attempt> plan_;
  std::size_t next_ = 0;
};

TEST(TimeLimit, QueueOfHardNodes) {
  std::vector<Set> many;  // so many that repeats are dropped meanwhile
  for (Node_index node = 10; node < 2000; ++node) many.push_back({1, node, node + 1});
  Planned_search search({{3, true, many, "4 of 4 nodes to do (0.00"},
                         {1, true, {{5, 6, 7}, {4, 5}}, "4 of 4 nodes to do (0.00"},
                         {2, true, many, "4 of 4 nodes to do (0.00"},
                         {4, false, {many[7]}, "4 of 4 nodes to do (0.00"},
                         {3, true, {{1, 9}, {4, 5}}, "3 of 4 nodes to do (25.00"},
                         {1, false, {{2, 8, 9}}, "3 of 4 nodes to do (25.00"},
                         {2, true, many, "2 of 4 nodes to do (50.00"},
                         {3, true, {}, "2 of 4 nodes to do (50.00"}});
  Clique_vector cliques;
  const Search_kind kind = {"", "T", "sets", ""};
  EXPECT_EQ(Search_queue(search, {3, 1, 2, 4}, kind, &search.limit, cliques),
            (std::vector<Node_index>{2, 3}));
  EXPECT_EQ(search.finished, (std::vector<Node_index>{4, 1}));
  EXPECT_EQ(Read_state_report(), std::string(34, '_') + "\n Altogether 1994 exact sets found.\n");
  std::vector<Set> expected = many;
  expected.erase(expected.begin() + 7);
  expected.insert(expected.begin(), {many[7], {2, 8, 9}, {1, 9}});
  expected.insert(expected.end(), {{4, 5}, {5, 6, 7}});
  EXPECT_EQ(literal::Sets_of(cliques), expected);
}

/// With room for as many as are found, with too little at a node, and with too little at the end,
/// when what failed attempts have found comes in.
TEST(TimeLimit, NoMoreCliquesThanNumbers) {
  const std::vector<Planned_attempt> plan = {
      {1, false, {{1, 2, 3}, {1, 2, 4}}, "2 of 2 nodes to do (0.00"},
      {2, true, {{2, 5, 6}}, "1 of 2 nodes to do (50.00"}};
  for (const std::size_t most : {1U, 2U, 3U}) {
    Planned_search search(most == 1 ? std::vector(plan.begin(), plan.begin() + 1) : plan);
    Clique_vector cliques;
    const Search_kind kind = {"", "T", "sets", ""};
    EXPECT_EQ(
        Thrown_message([&] {
          Search_queue(search, {1, 2}, kind, &search.limit, cliques, most);
        }),
        most < 3 ? "ERROR: there are more cliques than can be numbered.\n" : "nothing was thrown");
  }
}

TEST(TimeLimit, ReportTexts) {
  using namespace Clique_find_report_sub_routines;
  std::ostringstream text = Odd_stream();
  Report_progress("T", "longer", "units", 1000, 4000, text);
  Report_progress("longer", "T", "units", 3, 3, text);
  Report_hard_node(17, 2, 3, text);
  Report_all_rem_nodes_to_hard("directed cliques", text);
  EXPECT_EQ(text.str(),
            "______\nT\nlonger\n 1000 of 4000 units to do (75.00% done)\n"
            "______\nlonger\nT\n 3 of 3 units to do (0.00% done)\n"
            " Exceeded allowed time at node no.17,\n"
            " skipping, 2 out of 3 skipped in a row, (66.67%)\n"
            "___________________________________________________________\n"
            " The extraction of directed cliques has been found too slow \n"
            " at all of the remaining nodes.\n");
}

/// No core clique need be a clique, so the sets found may be any.
TEST(CoreCliques, EqualLiteralOnesOnRandomLeftMaps) {
  for (std::uint32_t seed = 0; seed < 4000; ++seed) {
    SCOPED_TRACE(seed);
    literal::Random random(seed);
    const std::uint32_t nodes = seed % 20 == 0 ? 100 : random.Between(2, 14);
    Left_map left;
    for (const auto& [node, neighs] : literal::Uniform(random, nodes, random.Between(10, 100))) {
      left.nodes.push_back(node);
      left.neighs.push_back(std::vector<Node_index>(neighs.begin(), neighs.end()));
    }
    std::vector<Set> exact;
    for (std::uint32_t i = random.Below(6); i > 0; --i) {
      const Set set = random.Nodes(nodes + 2, random.Between(3, 3 + nodes / 2));
      if (!literal::Lies_inside_one(set, exact)) exact.push_back(set);
    }
    Clique_vector cliques = literal::Rows_of(exact);
    Clique_vector core = literal::Rows_of({{7}});  // to be cleared
    std::uint32_t exact_clique_count = 0;
    if (seed % 2 == 0)
      Appr_core_cliques_ec(left, cliques, core);
    else
      Appr_core_cliques_dir_ec(left, cliques, core);
    const literal::Covered_cliques literal(left, exact);
    ASSERT_EQ(literal::Sets_of(core), literal.core);
    Extend_clique_vec(cliques, exact_clique_count, core);
    ASSERT_EQ(literal::Sets_of(cliques), literal.cliques);
    ASSERT_EQ(exact_clique_count, literal.exact_clique_count);
  }
}

}  // namespace
}  // namespace gns
