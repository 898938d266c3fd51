#include "bridge/Translate_result.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "Fake_jvm.h"
#include "bridge/Java_errors.h"
#include "control/Clique_find_ext_cont.h"

namespace gns {

namespace {

using Lines = std::vector<std::string>;

/// The calls of a translation that gets through without a fault, but for the empty result's two.
Lines Calls_of(const Com_result_tables& tables, bool directed = false) {
  Fake_jvm jvm;
  const jobject result = translateResultToJava(jvm.Env(), directed, tables);
  EXPECT_EQ(jvm.Text(result), "OutParams1");
  EXPECT_EQ(jvm.references_alive, 1U);
  EXPECT_EQ(jvm.faults, Lines());
  EXPECT_EQ(jvm.pending, "");
  EXPECT_EQ(external_control::JAVA_CPP_TRANSLATE_STATE_REPORT.Text(), " done.");
  EXPECT_EQ(Lines(jvm.calls.begin(), jvm.calls.begin() + 2),
            Lines({"OutParams1 = new()", "InParams1 = new()"}));
  return {jvm.calls.begin() + 2, jvm.calls.end()};
}

/// A bit of everything, at k = 3 and k = 5: cliques 1 and 2 are approximate, and so are the
/// communities 0 and 2 at k = 3.
Com_result_tables Sample() {
  Com_result_tables t;
  t.graph_links = {{"a", "b"}, {"b", "\xE4"}};
  t.cliques = {{0, {"a", "b"}}, {-1, {"b", "\xE4", "a"}}, {-2, {}}};
  t.k_cliques[3] = {{0, {"unseen"}}};
  t.communities[2] = {{0, {"unseen"}}};
  t.communities[3] = {{0, {"a", "b"}}, {1, {"b"}}, {-2, {"\xE4"}}};
  t.com_links[3] = {{0, {{"a", "b"}, {"b", "a"}}}, {-2, {{"\xE4", "a"}}}, {7, {{"no", "one"}}}};
  t.com_cliques[3] = {{0, {0, -1}}, {-2, {-1}}};
  t.com_graphs[3] = {{{-2, 1}, 3}, {{0, 1}, 2}};
  t.size_dist_exact[3] = {{3, 1}, {4, 2}};
  t.degree_dist_exact[3] = {{1, 2}};
  t.overlap_dist_exact[3] = {{2, 5}};
  t.membership_dist_exact[3] = {{0, 9}};
  t.size_dist_appr[3] = t.size_dist_merged[3] = {{77, 77}};
  t.membership_dist_exact[4] = {{4, 4}};
  t.communities[5] = {{0, {"b"}}};
  t.com_graphs[6] = {{{0, 1}, 1}};
  return t;
}

const Lines sample_calls = {
    "InParams1.addEdge('a', 'b')",
    "InParams1.addEdge('b', '\xE4')",
    "OutParams1.setInParams(InParams1)",
    "Clique1 = new(false)",
    "Clique1.addVertex(\"a\")",
    "Clique1.addVertex(\"b\")",
    "OutParams1.addClique(Clique1, 0)",
    "Clique2 = new(true)",
    "Clique2.addVertex(\"b\")",
    "Clique2.addVertex(\"\xEF\xBF\xBD\")",
    "Clique2.addVertex(\"a\")",
    "OutParams1.addClique(Clique2, -1)",
    "Clique3 = new(true)",
    "OutParams1.addClique(Clique3, -2)",
    "Community1 = new(false)",
    "Community1.setSize(3)",
    "OutParams1.addVertexToCommunity(Community1, \"a\")",
    "OutParams1.addVertexToCommunity(Community1, \"b\")",
    "Edge1 = new(\"a\", \"b\", true)",
    "Community1.addEdge(Edge1)",
    "Edge2 = new(\"b\", \"a\", true)",
    "Community1.addEdge(Edge2)",
    "OutParams1.addCliqueToCommunity(Community1, 0)",
    "OutParams1.addCliqueToCommunity(Community1, 1)",
    "OutParams1.addCommunity(Community1)",
    "Community2 = new(false)",
    "Community2.setSize(3)",
    "OutParams1.addVertexToCommunity(Community2, \"b\")",
    "OutParams1.addCommunity(Community2)",
    "Community3 = new(true)",
    "Community3.setSize(3)",
    "OutParams1.addVertexToCommunity(Community3, \"\xEF\xBF\xBD\")",
    "Edge3 = new(\"\xEF\xBF\xBD\", \"a\", true)",
    "Community3.addEdge(Edge3)",
    "OutParams1.addCliqueToCommunity(Community3, 1)",
    "OutParams1.addCommunity(Community3)",
    "OutParams1.addCommunityGrafEdge(3, 2, 1, 3)",
    "OutParams1.addCommunityGrafEdge(3, 0, 1, 2)",
    "OutParams1.addDistribution(3, 3, 1, \"sizeDist\")",
    "OutParams1.addDistribution(3, 4, 2, \"sizeDist\")",
    "OutParams1.addDistribution(3, 1, 2, \"degreeDist\")",
    "OutParams1.addDistribution(3, 2, 5, \"overlapDist\")",
    "OutParams1.addDistribution(3, 0, 9, \"membershipDist\")",
    "OutParams1.addDistribution(4, 4, 4, \"membershipDist\")",
    "Community4 = new(false)",
    "Community4.setSize(5)",
    "OutParams1.addVertexToCommunity(Community4, \"b\")",
    "OutParams1.addCommunity(Community4)",
};

TEST(TranslateResult, TellsJavaEverythingInItsOrder) {
  EXPECT_EQ(Calls_of(Sample(), true), sample_calls);
}

TEST(TranslateResult, ReportsHowFarItIs) {
  Lines reports;
  Fake_jvm jvm;
  jvm.in_java = [&] {
    const std::string report = external_control::JAVA_CPP_TRANSLATE_STATE_REPORT.Text();
    if (reports.empty() || reports.back() != report) reports.push_back(report);
  };
  translateResultToJava(jvm.Env(), false, Sample());
  EXPECT_EQ(
      reports,
      Lines({" Loading results: edges", " Loading results: cliques",
             " Loading results: communities at k= 3", " Loading results: community graph at k=3",
             " Loading results: distributions", " Loading results: communities at k= 5"}));
  reports.clear();
  translateResultToJava(jvm.Env(), false, {});
  EXPECT_EQ(reports, Lines({" Loading results"}));
}

TEST(TranslateResult, MakesAnEmptyResultOfEmptyTables) {
  Com_result_tables only_below_three;
  only_below_three.communities[2] = {{0, {"unseen"}}};
  const Lines nothing = {"OutParams1.setInParams(InParams1)"};
  EXPECT_EQ(Calls_of({}), nothing);
  EXPECT_EQ(Calls_of(only_below_three), nothing);
}

TEST(TranslateResult, FillsGapsInTheIndicesWithEmptyOnesAndSaysSo) {
  Com_result_tables tables;
  tables.cliques = {{1, {"a"}}, {INT32_MIN, {"b"}}};
  tables.communities[3] = {{-3, {"c"}}};
  tables.com_links[3] = {{0, {{"a", "b"}}}};
  tables.com_cliques[3] = {{0, {INT32_MIN + 1}}};
  testing::internal::CaptureStdout();
  EXPECT_EQ(
      Calls_of(tables),
      Lines({"OutParams1.setInParams(InParams1)", "Clique1 = new(false)",
             "OutParams1.addClique(Clique1, 0)", "Clique2 = new(false)", "Clique2.addVertex(\"a\")",
             "OutParams1.addClique(Clique2, 1)", "Community1 = new(false)", "Community1.setSize(3)",
             "Edge1 = new(\"a\", \"b\", false)", "Community1.addEdge(Edge1)",
             "OutParams1.addCliqueToCommunity(Community1, 2147483647)",
             "OutParams1.addCommunity(Community1)"}));
  EXPECT_EQ(testing::internal::GetCapturedStdout(), "can't happen! (1)\ncan't happen! (2)\n");
}

/// The largest k there is must neither be missed nor take a visit of all k below it.
TEST(TranslateResult, ReachesTheLargestK) {
  Com_result_tables tables;
  tables.communities[UINT32_MAX] = {};
  tables.size_dist_exact[UINT32_MAX] = {{0, UINT32_MAX}};
  EXPECT_EQ(Calls_of(tables), Lines({"OutParams1.setInParams(InParams1)",
                                     "OutParams1.addDistribution(-1, 0, -1, \"sizeDist\")"}));
}

TEST(TranslateResult, HoldsAsManyReferencesForMuchAsForLittle) {
  std::size_t most[2] = {};
  for (const int repeats : {1, 5000}) {
    Com_result_tables tables = Sample();
    for (int i = 0; i < repeats; ++i) {
      const std::string name = std::to_string(i);
      tables.graph_links.push_back(name, "a");
      tables.cliques.Add(3 + i).push_back(name);
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

/// Whatever of the JVM fails, and wherever: the error stays pending, nothing is called on top of
/// it, and no reference is left behind.
TEST(TranslateResult, EndsAtTheFirstJavaError) {
  std::size_t failing_call = 0;
  for (bool finished = false; !finished; ++failing_call) {
    Fake_jvm jvm;
    jvm.failing_call = failing_call;
    try {
      translateResultToJava(jvm.Env(), false, Sample());
      finished = true;
    } catch (const Java_error_pending&) {
      EXPECT_EQ(jvm.references_alive, 0U) << failing_call;
      EXPECT_EQ(jvm.pending.empty(), jvm.refused_room) << failing_call;
      EXPECT_EQ(jvm.calls_that_can_fail, failing_call + 1);
    }
    EXPECT_EQ(jvm.faults, Lines()) << failing_call;
  }
  EXPECT_GT(failing_call, 80U);
}

}  // namespace

}  // namespace gns
