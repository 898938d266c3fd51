#include <gtest/gtest.h>

#include <filesystem>
#include <map>
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

/// Links of nodes behind those that the index links know.
TEST(CommunityFiles, OfLinksThatNobodyHasTold) {
  for (const Index_links& links : {Index_links({{1, 2}}, {}, 2), Index_links()}) {
    const Temp_dir temp;
    Kiir_com_links_VL(Rows<Index_pair>({{{1, 2}, {1, 7}, {7, 8}}}), temp.Path("out"), 3, Letters(),
                      1, "", header, links);
    EXPECT_TRUE(
        Contents_of(temp.Path("out"))
            .at("k=3/communities_links")
            .ends_with("\n0:\n" + std::string(links.size() == 0 ? "b a" : "a b") + "\ng a\nh g\n"));
  }
}

TEST(CommunityFiles, OfDirectedCommunities) {
  const std::string rest = "directed communities at k=3\n#" + header;
  const std::string remark = "# Negative indices indicate approximate communities.\n";
  EXPECT_EQ(Community_files("directed", 2, 3),
            (Files{{"k=3/directed_communities",
                    "# The " + rest + remark + "\n0: a b c d \n1: d e f \n-2: f g h \n"},
                   {"k=3/directed_communities_cliques", "# The contained directed cliques in the " +
                                                            rest + "\n0: 0 3 \n1: 1 \n-2: 2 -7 \n"},
                   {"k=3/directed_communities_links",
                    "# The links inside the " + rest +
                        "\n0:\nb a\na c\na d\nb c\nd c\n1:\nd e\ne f\ne f\n-2:\ng f\nh f\ng h\n"},
                   {"k=3/graph_of_directed_communities",
                    "# The graph of directed at k=3\n#" + header + "\n0 1 1\n0 -2 15\n1 -2 3\n"}}));
  Files files = Community_files("", 0, 0);
  EXPECT_TRUE(files["k=3/communities_cliques"].ends_with("-0: -0 -3 \n-1: -1 \n-2: -2 -7 \n"));
  EXPECT_TRUE(files["k=3/graph_of_communities"].ends_with("\n-0 -1 1\n-0 -2 15\n-1 -2 3\n"));
}

TEST(CliqueFile, FlagsAndCounts) {
  const Temp_dir temp;
  const auto write = [&](std::uint32_t exact_count, const std::string& flag) {
    Kiir_cliques_VL(temp.Path("out"), Rows<Node_index>({{1, 2, 3}, {3, 4, 5, 6}}), Letters(),
                    exact_count, flag, header);
  };
  write(0, "directed");
  write(2, "intensity");
  EXPECT_EQ(Contents_of(temp.Path("out")),
            (Files{{"cliques", "# The cliques" + header + "\n0: a b c \n1: c d e f \n"},
                   {"directed_cliques", "# The directed cliques" + header +
                                            "# Negative indices indicate approximate cliques.\n"
                                            "\n-0: a b c \n-1: c d e f \n"}}));
}

TEST(GraphFile, DirectionsAndWeights) {
  Link_map_builder builder(true);
  builder.Add("b", "large", 1234567);
  builder.Add("b", "sum", 0.1);
  builder.Add("b", "sum", 1.0 / 3);
  builder.Add("a", "b", -0.2);
  const Link_map links = builder.Build();
  const Temp_dir temp;
  Kiir_graph(links, temp.Path("out"), false, header, true);
  Kiir_graph(links, temp.Path("out"), true, header, false);
  EXPECT_EQ(
      Contents_of(temp.Path("out")),
      (Files{{"graph", "# The links" + header +
                           "# (mutual links and self-links were removed)\n\n"
                           "a b -0.2\nb large 1.23457e+06\nb sum 0.433333\n"},
             {"directed_graph",
              "# The links" + header + "# (self-links were removed)\n\na b\nb large\nb sum\n"}}));
}

TEST(StatisticsFiles, NamesTitlesAndBodies) {
  const Temp_dir temp;
  Kiir_stats_VL({{0, 7}, {1, 12}}, {{3, 2}, {4, 1}}, {}, {{0, 3}}, temp.Path("out"), 12, "directed",
                "_appr", header);
  const std::string rest = " the _apprdirected  communities at k=12\n#" + header + "\n";
  const std::string name = "_distribution_appr";
  EXPECT_EQ(
      Contents_of(temp.Path("out")),
      (Files{{"k=12/directed_membership" + name,
              "# The node membership distr. in" + rest + "0 7\n1 12\n\n"},
             {"k=12/directed_size" + name, "# The size distr. of" + rest + "3 2\n4 1\n\n"},
             {"k=12/directed_overlap" + name, "# The overlap size distr. of" + rest + "\n"},
             {"k=12/directed_degree" + name, "# The com. degree distr. of" + rest + "0 3\n\n"}}));
}

TEST(RunHeader, EveryLine) {
  std::string text = "what was there before";
  Generate_alap_szoveg(text, "/d/x/../net.dat", true, 0.5, true, 2);
  Extend_alap_szoveg(text, true, -1234567, true, true, 0.01, true, 4294967295U);
  EXPECT_EQ(text,
            " from /d/net.dat\n# at a lower link weight threshold of 0.500000,\n"
            "# and at an upper link weight threshold of 2.000000.\n"
            "# A lower link weight intensity threshold of -1234567.000000 was set.\n"
            "# Links were treated as directed.\n"
            "# The maximal allowed time per node during clique search was 0.010000 secs.\n"
            "# The communities were extracted solely at k=4294967295.\n");
  Generate_com_flag(text, false, false);
  EXPECT_EQ(text, "");
}

TEST(OutputDirectory, MustBeEmpty) {
  const Temp_dir temp;
  Check_out_dir(temp.Path("missing"));
  Check_out_dir(temp.Write("file", "text"));
  const std::string out = temp.Path("out");
  std::filesystem::create_directory(out);
  Check_out_dir(out);
  temp.Write("out/.hidden", "");
  EXPECT_THROW(Check_out_dir(out), Xerror_msg);
}

}  // namespace
}  // namespace gns
