#include <gtest/gtest.h>

#include <filesystem>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "Directory_contents.h"
#include "Temp_dir.h"
#include "files/Community_files.h"
#include "files/Graph_and_clique_files.h"
#include "files/Results_directory.h"
#include "files/Statistics_files.h"
#include "foundation/Errors.h"

namespace gns {
namespace {

using Files = std::map<std::string, std::string>;

const std::string header = " from /d/net.dat\n# and more\n";

template <typename Value>
Row_array<Value> Rows(const std::vector<std::vector<Value>>& rows) {
  Row_array<Value> array;
  for (const auto& row : rows) array.push_back(row);
  return array;
}

/// Nodes 1..8 are named a..h.
Node_names Letters() {
  Name_table table;
  std::vector<std::uint32_t> numbers;
  for (const char* name : {"a", "b", "c", "d", "e", "f", "g", "h"})
    numbers.push_back(table.Add(name));
  return {table, numbers};
}

/// Two exact communities and an approximate one, as far as the counts say so.
Files Community_files(const std::string& flag, std::uint32_t exact_com_count,
                      std::uint32_t exact_clique_count) {
  const Temp_dir temp;
  const std::string out = temp.Path("out");
  Kiir_coms_VL(Rows<Node_index>({{1, 2, 3, 4}, {4, 5, 6}, {6, 7, 8}}), out, 3, Letters(),
               exact_com_count, flag, header);
  Kiir_coms_cliques_VL(Rows<Clique_index>({{0, 3}, {1}, {2, 7}}), out, 3, exact_com_count,
                       exact_clique_count, flag, header);
  // The links (2, 1), (4, 3) and (7, 6) exist in that direction only; (6, 8) doesn't exist at all.
  const Index_links links(
      {{1, 3}, {1, 4}, {2, 1}, {2, 3}, {3, 2}, {4, 3}, {4, 5}, {5, 6}, {7, 6}, {7, 8}}, {}, 8);
  Kiir_com_links_VL(Rows<Index_pair>({{{1, 2}, {1, 3}, {1, 4}, {2, 3}, {3, 4}},
                                      {{4, 5}, {5, 6}, {5, 6}},
                                      {{6, 7}, {6, 8}, {7, 8}}}),
                    out, 3, Letters(), exact_com_count, flag, header, links);
  Kiir_com_graph_VL({{0, 1, 1}, {0, 2, 15}, {1, 2, 3}}, exact_com_count, out, 3, flag, header);
  return Contents_of(out);
}

TEST(CommunityFiles, PlainWithAnApproximateCommunity) {
  EXPECT_EQ(
      Community_files("", 2, 7),
      (Files{{"k=3/communities", "# The communities at k=3\n#" + header +
                                     "# Negative indices indicate approximate communities.\n\n"
                                     "0: a b c d \n1: d e f \n-2: f g h \n"},
             {"k=3/communities_cliques", "# The contained cliques in the communities at k=3\n#" +
                                             header + "\n0: 0 3 \n1: 1 \n-2: 2 -7 \n"},
             {"k=3/communities_links", "# The links inside the communities at k=3\n#" + header +
                                           "\n0:\nb a\na c\na d\nb c\nd c\n1:\nd e\ne f\ne f\n"
                                           "-2:\ng f\nh f\ng h\n"},
             {"k=3/graph_of_communities",
              "# The graph of at k=3\n#" + header + "\n0 1 1\n0 -2 15\n1 -2 3\n"}}));
}

TEST(CommunityFiles, FlagsAndCounts) {
  for (const std::string flag : {"directed", "intensity"}) {
    const Files files = Community_files(flag, 3, 8);
    ASSERT_EQ(files.size(), 4U);
    EXPECT_EQ(files.at("k=3/" + flag + "_communities"),
              "# The " + flag + " communities at k=3\n#" + header +
                  "\n0: a b c d \n1: d e f \n2: f g h \n");
    EXPECT_EQ(files.at("k=3/" + flag + "_communities_cliques"),
              "# The contained " + flag + " cliques in the " + flag + " communities at k=3\n#" +
                  header + "\n0: 0 3 \n1: 1 \n2: 2 7 \n");
    EXPECT_TRUE(files.at("k=3/" + flag + "_communities_links")
                    .starts_with("# The links inside the " + flag + " communities at k=3\n#" +
                                 header + "\n0:\n"));
    EXPECT_TRUE(files.at("k=3/graph_of_" + flag + "_communities")
                    .starts_with("# The graph of " + flag + " at k=3\n#" + header + "\n0 1 1\n"));
  }
  EXPECT_TRUE(Community_files("", 2, 1)
                  .at("k=3/communities_cliques")
                  .ends_with("\n0: 0 3 \n1: 1 \n-2: -2 -7 \n"));
  const Files files = Community_files("", 0, 0);
  EXPECT_TRUE(files.at("k=3/communities").ends_with("-0: a b c d \n-1: d e f \n-2: f g h \n"));
  EXPECT_TRUE(files.at("k=3/communities_cliques").ends_with("-0: -0 -3 \n-1: -1 \n-2: -2 -7 \n"));
  EXPECT_TRUE(files.at("k=3/communities_links").ends_with("\n-2:\ng f\nh f\ng h\n"));
  EXPECT_TRUE(files.at("k=3/graph_of_communities").ends_with("\n-0 -1 1\n-0 -2 15\n-1 -2 3\n"));
}

TEST(CliqueFile, FlagsAndCounts) {
  const std::string remark = "# Negative indices indicate approximate cliques.\n";
  struct Case {
    std::string flag;
    std::uint32_t exact_count;
    std::string name;
    std::string text;
  };
  for (const Case& c : std::vector<Case>{
           {"", 2, "cliques", "# The cliques" + header + "\n0: a b c \n1: c d e f \n"},
           {"", 1, "cliques", "# The cliques" + header + remark + "\n0: a b c \n-1: c d e f \n"},
           {"directed", 0, "directed_cliques",
            "# The directed cliques" + header + remark + "\n-0: a b c \n-1: c d e f \n"},
           {"intensity", 2, "cliques", "# The cliques" + header + "\n0: a b c \n1: c d e f \n"},
       }) {
    const Temp_dir temp;
    Kiir_cliques_VL(temp.Path("out"), Rows<Node_index>({{1, 2, 3}, {3, 4, 5, 6}}), Letters(),
                    c.exact_count, c.flag, header);
    EXPECT_EQ(Contents_of(temp.Path("out")), (Files{{c.name, c.text}}));
  }
}

TEST(GraphFile, DirectionsAndWeights) {
  Link_map_builder builder(true);
  builder.Add("b", "large", 1234567);
  builder.Add("b", "negative", -2);
  builder.Add("b", "sum", 0.1);
  builder.Add("b", "sum", 1.0 / 3);
  builder.Add("a", "b", 0.2);
  const Link_map links = builder.Build();
  const std::string undirected =
      "# The links" + header + "# (mutual links and self-links were removed)\n\n";
  const std::string directed = "# The links" + header + "# (self-links were removed)\n\n";
  const std::string names = "a b\nb large\nb negative\nb sum\n";
  const std::string weights = "a b 0.2\nb large 1.23457e+06\nb negative -2\nb sum 0.433333\n";
  const Temp_dir temp;
  const std::string out = temp.Path("out");
  for (const bool weighted : {false, true}) {
    Kiir_graph(links, out, false, header, weighted);
    Kiir_graph(links, out, true, header, weighted);
    const std::string& body = weighted ? weights : names;
    EXPECT_EQ(Contents_of(out),
              (Files{{"graph", undirected + body}, {"directed_graph", directed + body}}));
  }
  Kiir_graph({}, out, false, header, true);
  EXPECT_EQ(Contents_of(out).at("graph"), undirected);
}

TEST(StatisticsFiles, NamesTitlesAndBodies) {
  struct Case {
    std::string com_flag;
    std::string stat_flag;
    std::string prefix;
    std::string title_part;
  };
  for (const Case& c : std::vector<Case>{{"", "", "", ""},
                                         {"", "_merged", "", "_merged"},
                                         {"", "_exact", "", "_exact"},
                                         {"directed", "", "directed_", "directed "},
                                         {"directed", "_appr", "directed_", "_apprdirected "},
                                         {"intensity", "", "intensity_", "intensity "}}) {
    const Temp_dir temp;
    Kiir_stats_VL({{0, 7}, {1, 12}, {2, 2}}, {{3, 2}, {4, 1}}, {}, {{0, 3}}, temp.Path("out"), 12,
                  c.com_flag, c.stat_flag, header);
    const std::string rest = c.title_part + " communities at k=12\n#" + header + "\n";
    const auto name = [&](const std::string& kind) {
      return "k=12/" + c.prefix + kind + "_distribution" + c.stat_flag;
    };
    EXPECT_EQ(Contents_of(temp.Path("out")),
              (Files{{name("membership"),
                      "# The node membership distr. in the " + rest + "0 7\n1 12\n2 2\n\n"},
                     {name("size"), "# The size distr. of the " + rest + "3 2\n4 1\n\n"},
                     {name("overlap"), "# The overlap size distr. of the " + rest + "\n"},
                     {name("degree"), "# The com. degree distr. of the " + rest + "0 3\n\n"}}));
  }
}

TEST(RunHeader, EveryLine) {
  const std::string from = " from /d/net.dat\n";
  struct Case {
    bool use_lower, use_upper, use_intensity, directed, use_time_limit, use_single_k;
    std::string text;
  };
  for (const Case& c : std::vector<Case>{
           {false, false, false, false, false, false,
            "# at no lower link weight threshold,\n# and at no upper link weight threshold.\n"
            "# Links were treated as undirected.\n"
            "# No time limit was set for the clique search.\n"},
           {true, false, false, true, true, false,
            "# at a lower link weight threshold of 0.500000,\n"
            "# and at no upper link weight threshold.\n# Links were treated as directed.\n"
            "# The maximal allowed time per node during clique search was 0.010000 secs.\n"},
           {false, true, true, false, false, true,
            "# at no lower link weight threshold,\n"
            "# and at an upper link weight threshold of 2.000000.\n"
            "# A lower link weight intensity threshold of -1234567.000000 was set.\n"
            "# Links were treated as undirected.\n"
            "# No time limit was set for the clique search.\n"
            "# The communities were extracted solely at k=4294967295.\n"},
       }) {
    std::string text = "what was there before";
    Generate_alap_szoveg(text, "/d/x/../net.dat", c.use_lower, 0.5, c.use_upper, 2);
    Extend_alap_szoveg(text, c.use_intensity, -1234567, c.directed, c.use_time_limit, 0.01,
                       c.use_single_k, 4294967295U);
    EXPECT_EQ(text, from + c.text);
    const Temp_dir temp;
    Kiir_params(temp.Path("new/out"), text);
    EXPECT_EQ(Contents_of(temp.Path("new/out")),
              (Files{{"input_params.txt", "# Vorlane was run on links taken" + from + c.text}}));
  }
}

TEST(ComFlag, OfEachMethod) {
  std::string flag = "before";
  Generate_com_flag(flag, false, false);
  EXPECT_EQ(flag, "");
  Generate_com_flag(flag, true, false);
  EXPECT_EQ(flag, "directed");
  Generate_com_flag(flag, false, true);
  EXPECT_EQ(flag, "intensity");
}

TEST(OutputDirectory, MustBeEmpty) {
  const Temp_dir temp;
  Check_out_dir(temp.Path("missing"));
  Check_out_dir(temp.Write("file", "text"));
  const std::string out = temp.Path("out");
  std::filesystem::create_directory(out);
  Check_out_dir(out);
  for (const std::string inside : {"out/visible", "out/.hidden"}) {
    temp.Write(inside, "");
    try {
      Check_out_dir(out);
      ADD_FAILURE() << inside;
    } catch (const Xerror_msg& error) {
      EXPECT_STREQ(error.what(),
                   "ERROR: the output directory already exists and it is non-empty.\n");
    }
    std::filesystem::remove(temp.Path(inside));
  }
}

}  // namespace
}  // namespace gns
