#include "bindings/java/native/Translate_result.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

#include "Fake_jvm.h"
#include "control/Clique_find_ext_cont.h"

namespace gns {

namespace {

/// The calls of a translation, and in front of those at which the report has changed the report.
std::string Calls_of(const Com_result_tables& tables, bool has_arrays = false) {
  Fake_jvm jvm;
  jvm.has_arrays = has_arrays;
  std::string report;
  jvm.in_java = [&] {
    const std::string now = external_control::JAVA_CPP_TRANSLATE_STATE_REPORT.Text();
    if (std::exchange(report, now) != now) jvm.calls.push_back("#" + now);
  };
  EXPECT_EQ(jvm.Text(translateResultToJava(jvm.Env(), true, tables)), "OutParams1");
  EXPECT_EQ(jvm.references_alive, 1U);
  EXPECT_EQ(jvm.faults, std::vector<std::string>());
  EXPECT_EQ(external_control::JAVA_CPP_TRANSLATE_STATE_REPORT.Text(), " done.");
  std::string calls = "\n";
  for (const std::string& call : jvm.calls) calls += call + "\n";
  return calls;
}

/// A bit of everything, at k from 3 to 5. There is no clique 1 and no community 1 at k = 3.
Com_result_tables Sample() {
  Com_result_tables t;
  t.graph_links = {{"a", "b"}};
  t.cliques = {{0, {"a", "b"}}, {-2, {"b", "a"}}, {INT32_MIN, {"unseen"}}};
  t.k_cliques[3] = {{0, {"unseen"}}};
  t.communities[2] = {{0, {"unseen"}}};
  t.communities[3] = {{0, {"a", "b"}}, {-2, {"c"}}};
  t.com_links[3] = {{0, {{"a", "b"}}}, {-2, {{"c", "a"}}}, {7, {{"no", "one"}}}};
  t.com_cliques[3] = {{0, {0, -2, INT32_MIN + 1}}, {-2, {-2}}};
  t.com_graphs[3] = {{{-2, 1}, 3}, {{0, -1}, 2}};
  t.size_dist_exact[3] = {{3, 1}, {4, UINT32_MAX}};
  t.degree_dist_exact[3] = {{1, 2}};
  t.overlap_dist_exact[3] = {{2, 5}};
  t.membership_dist_exact[3] = {{0, 9}};
  t.size_dist_appr[3] = t.size_dist_merged[3] = {{77, 77}};
  t.membership_dist_exact[4] = {{4, 4}};
  t.communities[5] = {{0, {"b"}}};
  t.com_graphs[6] = {{{0, 1}, 1}};
  return t;
}

constexpr const char* sample_calls = R"(
OutParams1 = new()
InParams1 = new()
# Loading results: edges
InParams1.addEdge('a', 'b')
OutParams1.setInParams(InParams1)
Clique1 = new(false)
# Loading results: cliques
Clique1.addVertex("a")
Clique1.addVertex("b")
OutParams1.addClique(Clique1, 0)
Clique2 = new(false)
OutParams1.addClique(Clique2, 1)
Clique3 = new(true)
Clique3.addVertex("b")
Clique3.addVertex("a")
OutParams1.addClique(Clique3, -2)
Community1 = new(false)
# Loading results: communities at k= 3
Community1.setSize(3)
OutParams1.addVertexToCommunity(Community1, "a")
OutParams1.addVertexToCommunity(Community1, "b")
Edge1 = new("a", "b", true)
Community1.addEdge(Edge1)
OutParams1.addCliqueToCommunity(Community1, 0)
OutParams1.addCliqueToCommunity(Community1, 2)
OutParams1.addCliqueToCommunity(Community1, 2147483647)
OutParams1.addCommunity(Community1)
Community2 = new(false)
Community2.setSize(3)
OutParams1.addCommunity(Community2)
# Loading results: community graph at k=3
OutParams1.addCommunityGrafEdge(3, 2, 1, 3)
OutParams1.addCommunityGrafEdge(3, 0, 1, 2)
# Loading results: distributions
OutParams1.addDistribution(3, 3, 1, "sizeDist")
OutParams1.addDistribution(3, 4, -1, "sizeDist")
OutParams1.addDistribution(3, 1, 2, "degreeDist")
OutParams1.addDistribution(3, 2, 5, "overlapDist")
OutParams1.addDistribution(3, 0, 9, "membershipDist")
OutParams1.addDistribution(4, 4, 4, "membershipDist")
Community3 = new(false)
# Loading results: communities at k= 5
Community3.setSize(5)
OutParams1.addVertexToCommunity(Community3, "b")
OutParams1.addCommunity(Community3)
)";

TEST(TranslateResult, TellsJavaEverythingInItsOrder) {
  testing::internal::CaptureStdout();
  EXPECT_EQ(Calls_of(Sample()), sample_calls);
  EXPECT_EQ(testing::internal::GetCapturedStdout(), "can't happen! (1)\ncan't happen! (2)\n");
  EXPECT_EQ(Calls_of({}),
            "\nOutParams1 = new()\nInParams1 = new()\n# Loading results\n"
            "OutParams1.setInParams(InParams1)\n");
}

/// The same by arrays: each part with the ends of its rows, nodes by number.
constexpr const char* sample_calls_by_arrays = R"(
ResultArrays1 = new()
# Loading results: edges
ResultArrays1.network([ 'a' 'b' ], [ 0 1 ])
# Loading results: cliques
ResultArrays1.cliques([ 2 ], [ 2 2 4 ], [ 0 1 1 0 ])
# Loading results: communities at k= 3
ResultArrays1.communities(3, true, [ ], [ 2 2 ], [ 0 1 ], [ 2 2 ], [ 0 1 ], [ 3 3 ], [ 0 2 2147483647 ])
# Loading results: community graph at k=3
ResultArrays1.communityGraph(3, [ 2 1 3 0 1 2 ])
# Loading results: distributions
ResultArrays1.distribution(3, "sizeDist", [ 3 1 4 -1 ])
ResultArrays1.distribution(3, "degreeDist", [ 1 2 ])
ResultArrays1.distribution(3, "overlapDist", [ 2 5 ])
ResultArrays1.distribution(3, "membershipDist", [ 0 9 ])
# Loading results: communities at k= 4
ResultArrays1.communities(4, true, [ ], [ ], [ ], [ ], [ ], [ ], [ ])
# Loading results: community graph at k=4
ResultArrays1.communityGraph(4, [ ])
# Loading results: distributions
ResultArrays1.distribution(4, "sizeDist", [ ])
ResultArrays1.distribution(4, "degreeDist", [ ])
ResultArrays1.distribution(4, "overlapDist", [ ])
ResultArrays1.distribution(4, "membershipDist", [ 4 4 ])
# Loading results: communities at k= 5
ResultArrays1.communities(5, true, [ ], [ 1 ], [ 1 ], [ ], [ ], [ ], [ ])
# Loading results: community graph at k=5
ResultArrays1.communityGraph(5, [ ])
# Loading results: distributions
ResultArrays1.distribution(5, "sizeDist", [ ])
ResultArrays1.distribution(5, "degreeDist", [ ])
ResultArrays1.distribution(5, "overlapDist", [ ])
ResultArrays1.distribution(5, "membershipDist", [ ])
ResultArrays1.names([ "a" "b" ])
)";

TEST(TranslateResult, HandsArraysToTheClassThatTakesThem) {
  testing::internal::CaptureStdout();
  EXPECT_EQ(Calls_of(Sample(), true), sample_calls_by_arrays);
  EXPECT_EQ(testing::internal::GetCapturedStdout(), "can't happen! (1)\ncan't happen! (2)\n");
}

TEST(TranslateResult, HoldsAsManyReferencesForMuchAsForLittle) {
  std::size_t most[2] = {};
  for (const int repeats : {1, 5000}) {
    Com_result_tables tables;
    for (int i = 0; i < repeats; ++i) {
      const std::string name = std::to_string(i);
      tables.graph_links.push_back(name, "a");
      tables.cliques.Add(i).push_back(name);
      tables.communities[4].Add(i).push_back(name);
      tables.com_links[4].Add(i).push_back(name, "a");
    }
    tables.cliques.Finish();
    tables.communities[4].Finish();
    tables.com_links[4].Finish();
    Fake_jvm jvm;
    translateResultToJava(jvm.Env(), false, tables);
    most[repeats > 1] = jvm.most_references_alive;
  }
  EXPECT_EQ(most[0], most[1]);
  EXPECT_LE(most[0], 20U);
}

}  // namespace

}  // namespace gns
