#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <sstream>
#include <string>
#include <vector>

#include "Literal_core_cliques.h"
#include "Random_graphs.h"
#include "control/Clique_find_ext_cont.h"
#include "search/Clique_find.h"
#include "search/Clique_reports.h"
#include "search/Directed_search.h"
#include "search/Queue_search.h"
#include "search/Undirected_search.h"

namespace gns {
namespace {

using literal::Graph;
using literal::Set;

std::vector<Set> As_sets(const Clique_vector& rows) {
  std::vector<Set> sets;
  for (std::size_t i = 0; i < rows.size(); ++i) sets.push_back(literal::Members(rows[i]));
  return sets;
}

/// An attempt that is to come: the node, what it finds, and whether it runs over.
struct Planned_attempt {
  Node_index node;
  bool fails;
  std::vector<Set> finds;
};

/// A search that goes by a plan.
class Planned_search : public Node_search {
 public:
  explicit Planned_search(std::vector<Planned_attempt> plan) : plan_(std::move(plan)) {}

  void Find(Node_index node, Attempt& attempt, Clique_vector& cliques) override {
    ASSERT_LT(next_, plan_.size());
    const Planned_attempt& planned = plan_[next_++];
    EXPECT_EQ(node, planned.node);
    for (const Set& set : planned.finds)
      cliques.push_back(std::vector<Node_index>(set.begin(), set.end()));
    if (planned.fails) time_ += limit_.seconds * 2;
    EXPECT_EQ(attempt.Runs_over(), planned.fails);
    const std::string report = Read_state_report();
    seen_.push_back(report.substr(report.find('\n') + 1));
  }
  void Finish(Node_index node) override { finished_.push_back(node); }

  [[nodiscard]] const Time_limit& Limit() const { return limit_; }
  [[nodiscard]] bool Ended() const { return next_ == plan_.size(); }
  [[nodiscard]] const std::vector<Node_index>& Finished() const { return finished_; }
  [[nodiscard]] const std::vector<std::string>& Reports() const { return seen_; }

 private:
  std::vector<Planned_attempt> plan_;
  std::size_t next_ = 0;
  double time_ = 100.0;
  Time_limit limit_{0.125, [this] { return time_; }};
  std::vector<Node_index> finished_;
  std::vector<std::string> seen_;
};

TEST(TimeLimit, QueueOfHardNodes) {
  struct Case {
    std::string name;
    Node_order order;
    std::vector<Planned_attempt> plan;
    std::vector<Node_index> left;
    std::vector<Set> cliques;
    std::string end;
  };
  std::vector<Set> many;
  for (Node_index node = 10; node < 2000; ++node) many.push_back({1, node, node + 1});
  std::vector<Set> one_put_first = many;
  std::rotate(one_put_first.begin(), one_put_first.begin() + 7, one_put_first.begin() + 8);
  const std::string end_of_all = " no approximation was needed\n";
  for (const Case& c : std::vector<Case>{
           {"one node", {7}, {{7, true, {{7, 8, 9}}}}, {7}, {{7, 8, 9}}, ""},
           {"all fail at once",
            {3, 1, 2},
            {{3, true, {{2, 3, 4}, {2, 3}}}, {1, true, {}}, {2, true, {{1, 9}, {2, 3, 4}}}},
            {1, 2, 3},
            {{1, 9}, {2, 3}, {2, 3, 4}},
            ""},
           {"the third finishes, then the others",
            {3, 1, 2},
            {{3, true, {{3, 4, 5}}},
             {1, true, {{1, 3, 5}}},
             {2, false, {{2, 3, 9}}},
             {3, false, {{3, 4, 5}, {1, 3, 5}}},
             {1, false, {{1, 6, 7}}}},
            {},
            {{2, 3, 9}, {3, 4, 5}, {1, 3, 5}, {1, 6, 7}},
            end_of_all},
           {"one chance more after each that finishes",
            {1, 2, 3, 4},
            {{1, true, {{1, 3, 4}}},
             {2, true, {}},
             {3, true, {}},
             {4, false, {{1, 3, 4}}},
             {1, true, {{1, 2, 3}}},
             {2, false, {{2, 8, 9}}},
             {3, true, {{1, 2, 3}, {1, 2, 7}}},
             {1, true, {}}},
            {1, 3},
            {{1, 3, 4}, {2, 8, 9}, {1, 2, 3}, {1, 2, 7}},
            ""},
           {"the same ones again and again",
            {1, 2, 3},
            {{1, true, many},
             {2, true, many},
             {3, false, {many[7]}},
             {1, true, many},
             {2, true, {}}},
            {1, 2},
            one_put_first,
            ""},
       }) {
    SCOPED_TRACE(c.name);
    Planned_search search(c.plan);
    Clique_vector cliques;
    cliques.push_back(std::vector<Node_index>{1});  // to be cleared
    const Search_kind kind = {"", " At most ", "sets", " no approximation was needed"};
    EXPECT_EQ(Search_queue(search, c.order, kind, &search.Limit(), cliques), c.left);
    EXPECT_TRUE(search.Ended());
    EXPECT_EQ(As_sets(cliques), c.cliques);

    std::vector<Node_index> finished;
    std::size_t waiting = c.order.size();
    ASSERT_EQ(search.Reports().size(), c.plan.size());
    for (std::size_t i = 0; i < c.plan.size(); ++i) {
      std::ostringstream progress;
      Clique_find_report_sub_routines::Report_progress(
          " At most 0.125:", "nodes", static_cast<std::uint32_t>(waiting),
          static_cast<std::uint32_t>(c.order.size()), progress);
      EXPECT_EQ(search.Reports()[i], progress.str().substr(progress.str().find('\n') + 1)) << i;
      if (c.plan[i].fails) continue;
      finished.push_back(c.plan[i].node);
      --waiting;
    }
    EXPECT_EQ(search.Finished(), finished);

    const std::string line = " Altogether " + std::to_string(cliques.size()) +
                             (c.left.empty() ? " sets" : " exact sets") + " found.";
    EXPECT_EQ(Read_state_report(), std::string(line.size(), '_') + "\n" + line + "\n" + c.end);
  }
}

TEST(TimeLimit, ReportsOfHardNodes) {
  using namespace Clique_find_report_sub_routines;
  std::ostringstream text;
  for (const std::uint32_t skipped : {1U, 2U, 3U}) Report_hard_node(17, skipped, 3, text);
  Report_all_rem_nodes_to_hard("cliques", text);
  Report_all_rem_nodes_to_hard("directed cliques", text);
  Report_clique_search_end("directed cliques", 12, "no approximation was needed.", text);
  EXPECT_EQ(text.str(),
            " Exceeded allowed time at node no.17,\n"
            " skipping, 1 out of 3 skipped in a row, (33.33%)\n"
            " Exceeded allowed time at node no.17,\n"
            " skipping, 2 out of 3 skipped in a row, (66.67%)\n"
            " Exceeded allowed time at node no.17,\n"
            " skipping, 3 out of 3 skipped in a row, (100.00%)\n"
            "__________________________________________________\n"
            " The extraction of cliques has been found too slow \n"
            " at all of the remaining nodes.\n"
            "___________________________________________________________\n"
            " The extraction of directed cliques has been found too slow \n"
            " at all of the remaining nodes.\n"
            "______________________________________\n"
            " Altogether 12 directed cliques found.\n"
            "no approximation was needed.\n");
}

/// A graph for both kinds of search.
struct Both_maps {
  Vertex_map undirected;
  Dir_vertex_map directed;
};

/// Each link of the graph gets one direction or both.
Both_maps Maps_of(const Graph& graph, literal::Random& random) {
  const std::uint32_t mutual = random.Below(101);
  std::set<Index_pair> links;
  for (const auto& [node, neighs] : graph) {
    for (auto neigh = neighs.upper_bound(node); neigh != neighs.end(); ++neigh) {
      const bool both = random.Chance(mutual);
      const bool ahead = random.Chance(50);
      if (both || ahead) links.insert({node, *neigh});
      if (both || !ahead) links.insert({*neigh, node});
    }
  }
  Both_maps maps;
  maps.undirected = literal::Vertex_map_of(graph);
  Dir_vtx_map_from_link_map(maps.directed,
                            Index_links(std::vector<Index_pair>(links.begin(), links.end()), {},
                                        static_cast<Node_index>(graph.size())));
  return maps;
}

/// Directed cliques are so many that only graphs of few nodes serve.
Graph Graph_for(bool directed, std::uint32_t seed) {
  if (!directed) return literal::Random_graph(seed);
  literal::Random random(seed);
  return literal::Uniform(random, random.Between(3, 12), random.Between(40, 100));
}

/// A clock that goes beyond the limit at one reading in so many percent, the same ones each time.
Time_limit Jumping_clock(std::uint32_t seed, std::uint32_t percent) {
  return {0.5, [random = literal::Random(seed), time = 0.0, percent]() mutable {
            return time += random.Chance(percent) ? 1.0 : 0.0;
          }};
}

struct Result {
  std::vector<Set> cliques;
  Left_map left;
  literal::Matrix matrix;

  /// The search alone, without core cliques.
  Result(bool directed, const Both_maps& maps, const Time_limit* limit) {
    Clique_vector rows;
    Overlap_matrix overlaps;
    if (limit == nullptr && directed)
      Clique_find_dir_ec(rows, overlaps, maps.directed);
    else if (limit == nullptr)
      Clique_find_ec(rows, overlaps, maps.undirected);
    else if (directed)
      Clique_find_dir_time_ec(rows, overlaps, maps.directed, left, *limit);
    else
      Clique_find_part_time_ec(rows, overlaps, maps.undirected, left, *limit);
    cliques = As_sets(rows);
    for (Clique_index i = 0; i < overlaps.size(); ++i) {
      const auto row = overlaps.Row(i);
      matrix.emplace_back(row.begin(), row.end());
    }
  }
};

class EachSearch : public ::testing::TestWithParam<bool> {};

TEST_P(EachSearch, EqualsTheExactOneWhereNothingRunsOver) {
  for (std::uint32_t seed = 0; seed < 1500; ++seed) {
    literal::Random random(seed);
    const Both_maps maps = Maps_of(Graph_for(GetParam(), seed), random);
    const Time_limit limit = {1e-3, [] { return 5.0; }};
    const Result timed(GetParam(), maps, &limit);
    const std::string line = " Altogether " + std::to_string(timed.cliques.size()) +
                             (GetParam() ? " directed" : "") + " cliques found.";
    const std::string closing =
        GetParam() ? "no approximation was needed." : " no approximation was needed";
    ASSERT_EQ(Read_state_report(),
              std::string(line.size(), '_') + "\n" + line + "\n" + closing + "\n");
    const Result exact(GetParam(), maps, nullptr);
    ASSERT_EQ(timed.cliques, exact.cliques) << seed;
    ASSERT_EQ(timed.matrix, exact.matrix) << seed;
    ASSERT_TRUE(timed.left.empty()) << seed;
  }
}

/// What is recorded beside a left map: maximal cliques, each once; what is missing lies inside
/// the left map, in which every node has enough neighbours for a clique of four.
void Expect_exact_part(const std::vector<Set>& all, const Both_maps& maps, const Result& timed) {
  const std::set<Set> recorded(timed.cliques.begin(), timed.cliques.end());
  ASSERT_EQ(recorded.size(), timed.cliques.size());
  const std::set<Set> maximal(all.begin(), all.end());
  ASSERT_TRUE(std::ranges::includes(maximal, recorded));
  const Set left(timed.left.nodes.begin(), timed.left.nodes.end());
  for (const Set& clique : all) {
    if (recorded.contains(clique)) continue;
    ASSERT_TRUE(std::ranges::includes(left, clique));
  }
  for (std::size_t i = 0; i < timed.left.size(); ++i) {
    Set neighs;
    for (const Node_index neigh : maps.undirected.Neighs(timed.left.nodes[i]))
      if (left.contains(neigh)) neighs.insert(neigh);
    ASSERT_EQ(literal::Members(timed.left.neighs[i]), neighs);
    ASSERT_GE(neighs.size(), 3U);
  }
}

TEST_P(EachSearch, StaysExactWhateverTheClockDoes) {
  std::size_t with_left = 0;
  std::size_t retried = 0;
  std::size_t approximated = 0;
  for (std::uint32_t seed = 0; seed < 3000; ++seed) {
    SCOPED_TRACE(seed);
    literal::Random random(seed);
    const Both_maps maps = Maps_of(Graph_for(GetParam(), seed), random);
    const std::uint32_t percent = std::vector<std::uint32_t>{2, 10, 40, 100}[seed % 4];
    const Result exact(GetParam(), maps, nullptr);
    const Time_limit limit = Jumping_clock(seed, percent);
    const Result timed(GetParam(), maps, &limit);
    Expect_exact_part(exact.cliques, maps, timed);
    if (HasFatalFailure()) return;
    with_left += timed.left.empty() ? 0 : 1;
    retried += timed.left.empty() && timed.cliques != exact.cliques ? 1 : 0;

    Clique_vector rows;
    Overlap_matrix matrix;
    std::uint32_t exact_clique_count = 0;
    bool approximation_needed = true;
    const Time_limit again = Jumping_clock(seed, percent);
    Find_cliques_ec(&again, GetParam(), rows, matrix, maps.directed, maps.undirected,
                    exact_clique_count, approximation_needed);
    const literal::Covered_cliques covered(timed.left, timed.cliques);
    ASSERT_EQ(As_sets(rows), covered.cliques);
    ASSERT_EQ(exact_clique_count, covered.exact_clique_count);
    ASSERT_EQ(approximation_needed, !covered.core.empty());
    ASSERT_EQ(matrix.size(), rows.size());
    approximated += approximation_needed ? 1 : 0;
  }
  EXPECT_GT(with_left, 300U);
  EXPECT_GT(retried, 100U);
  EXPECT_GT(approximated, 100U);
}

INSTANTIATE_TEST_SUITE_P(TimeLimit, EachSearch, ::testing::Bool());

/// No clique of four: nothing can run over, however late it is.
TEST(TimeLimit, SmallCliquesAreAlwaysFound) {
  for (std::uint32_t seed = 0; seed < 200; ++seed) {
    literal::Random random(seed);
    const Graph graph = literal::Two_sides(random, random.Between(3, 8), 1);
    const Both_maps maps = Maps_of(graph, random);
    const Time_limit late = Jumping_clock(seed, 100);
    for (const bool directed : {false, true}) {
      const Result timed(directed, maps, &late);
      EXPECT_TRUE(timed.left.empty());
      EXPECT_EQ(timed.cliques, Result(directed, maps, nullptr).cliques);
    }
  }
}

}  // namespace
}  // namespace gns
