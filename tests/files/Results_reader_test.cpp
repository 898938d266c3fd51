#include "files/Results_reader.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <filesystem>
#include <string>
#include <utility>
#include <vector>

#include "Temp_dir.h"
#include "foundation/Errors.h"

namespace gns {
namespace {

namespace fs = std::filesystem;
using Files = std::vector<std::pair<std::string, std::string>>;

class ResultsReader : public testing::Test {
 protected:
  void Write(const Files& files) const {
    for (const auto& [name, text] : files) {
      fs::create_directories(fs::path(temp_.Path(name)).parent_path());
      temp_.Write(name, text);
    }
  }
  /// The files of a run at k = 4.
  void Write_run() const {
    Write({{"graph", "# c\n\na b 2\nb c 1e-07\n"},
           {"cliques", "# c\n\n0: a b c d \n-1: b c \n"},
           {"k=4/communities", "#\n\n0: a b c d \n"},
           {"k=4/communities_links", "#\n\n0:\na b\nb c\n"},
           {"k=4/communities_cliques", "\n0: 0 -1 \n"},
           {"k=4/graph_of_communities", "#\n\n0 -1 2\n"}});
    for (const std::string kind : {"size", "degree", "overlap", "membership"})
      Write({{"k=4/" + kind + "_distribution", "#\n\n4 1\n\n"}});
  }
  std::string Load(const std::string& specifier = "") {
    std::string errors;
    tables_ = {};
    Read_coms(temp_.Path(), specifier, tables_, errors);
    return errors;
  }
  [[nodiscard]] std::string Report(const std::string& name, const std::string& what) const {
    return "When reading " + temp_.Path(name) + ":\n" + what + "\n";
  }
  [[nodiscard]] std::string Missing(const std::string& name) const {
    return Report(name, "ERROR : File not found: '" + temp_.Path(name) + "' ");
  }

  Temp_dir temp_;
  Com_result_tables tables_;
};

TEST_F(ResultsReader, FlavoursOfTheDistributions) {
  Write_run();
  fs::remove(temp_.Path("k=4/size_distribution"));
  Write({{"k=4/size_distribution_exact", "1 1\n"},
         {"k=4/size_distribution_appr", "2 2\n"},
         {"k=4/size_distribution_merged", "3 3\n"},
         {"k=4/degree_distribution_appr", "not read"}});
  EXPECT_EQ(Load(), "");
  EXPECT_EQ(tables_.size_dist_exact.at(4), (Distribution_table{{1, 1}}));
  EXPECT_EQ(tables_.size_dist_appr.at(4), (Distribution_table{{2, 2}}));
  EXPECT_EQ(tables_.size_dist_merged.at(4), (Distribution_table{{3, 3}}));
  EXPECT_TRUE(tables_.degree_dist_appr.empty());

  fs::remove(temp_.Path("k=4/size_distribution_appr"));
  EXPECT_EQ(Load(), Missing("k=4/size_distribution_appr"));
  EXPECT_TRUE(tables_.size_dist_appr.at(4).empty());
  EXPECT_EQ(tables_.size_dist_merged.at(4).size(), 1U);
}

TEST_F(ResultsReader, WhichEntriesAreDirectoriesOfAK) {
  Write_run();
  fs::rename(temp_.Path("k=4"), temp_.Path("run"));
  EXPECT_EQ(Load(), "");
  EXPECT_EQ(tables_.communities.size(), 0U);
  const std::vector<std::pair<std::string, std::uint32_t>> cases = {
      {"k=5", 5}, {"k=007", 7}, {"k=1E1", 10}, {"k= 8 ", 8}, {"k=2147483647", 2147483647}};
  for (const auto& [name, k] : cases) fs::copy(temp_.Path("run"), temp_.Path(name));
  fs::create_directory_symlink("run", temp_.Path("k=6"));
  for (const char* name : {"k=", "k=5.0", "k=1e1", "k=-2", "k=abc", "k=2147483648", "K=3", "xk=3"})
    fs::create_directory(temp_.Path(name));
  temp_.Write("k=3", "a file");
  EXPECT_EQ(Load(), "");
  for (const auto& [name, k] : cases) EXPECT_TRUE(tables_.communities.contains(k)) << name;
  EXPECT_TRUE(tables_.communities.contains(6));
  EXPECT_EQ(tables_.communities.size(), 6U);

  fs::create_directory(temp_.Path("k=7"));  // comes later and replaces what k=007 gave
  Load();
  EXPECT_TRUE(tables_.communities.at(7).empty());
  EXPECT_EQ(tables_.communities.at(5).size(), 1U);
}

TEST_F(ResultsReader, AFaultStopsItsFileOnly) {
  struct Case {
    std::string name;
    std::string text;
    std::string what;
  };
  const std::string pair = "ERROR: failed to read pair.\n";
  for (const Case& c : std::vector<Case>{
           {"graph", "a b\nc1\n", pair},
           {"k=4/communities", "0: a\nx y: b\n", "ERROR: failed to convert inputx\n"},
           {"k=4/communities_links", "0:\na b\n1:\nc\n", "ERROR: unable to convert link 'c'\n"},
           {"k=4/graph_of_communities", "0 1 2\n0 b 2\n", pair},
           {"k=4/overlap_distribution", "1 1\n1 b\n",
            "ERROR: Wrong line found in '" + temp_.Path("k=4/overlap_distribution") + "' :\n1 b"},
       }) {
    Write_run();
    Write({{c.name, c.text}});
    EXPECT_EQ(Load(), Report(c.name, c.what));
    for (const std::size_t size :
         {tables_.communities.at(4).size(), tables_.com_links.at(4).size(),
          tables_.com_graphs.at(4).size(), tables_.overlap_dist_exact.at(4).size()})
      EXPECT_EQ(size, 1U) << c.name;
  }
}

TEST_F(ResultsReader, WhatIsNoRegularFileIsMissing) {
  Write_run();
  for (const std::string name : {"graph", "cliques", "k=4/communities", "k=4/communities_links"})
    fs::remove(temp_.Path(name));
  fs::create_directory(temp_.Path("graph"));
  ASSERT_EQ(mkfifo(temp_.Path("cliques").c_str(), 0600), 0);  // nobody ever writes to it
  fs::create_symlink("/dev/zero", temp_.Path("k=4/communities"));
  EXPECT_EQ(Load(), Missing("graph") + Missing("cliques") + Missing("k=4/communities") +
                        Missing("k=4/communities_links"));
  EXPECT_TRUE(tables_.com_links.at(4).empty());
  EXPECT_EQ(tables_.com_cliques.at(4).size(), 1U);
}

TEST_F(ResultsReader, EveryFileIsMissingFromAnEmptyDirectoryOfAK) {
  fs::create_directory(temp_.Path("k=3"));
  const std::string at_k = "k=3/";
  std::string expected = Missing("directed_graph") + Missing("directed_cliques");
  for (const char* name : {"directed_communities", "directed_communities_links",
                           "directed_communities_cliques", "graph_of_directed_communities"})
    expected += Missing(at_k + name);
  for (const std::string kind : {"size", "degree", "overlap", "membership"})
    for (const char* flavour : {"_exact", "_appr", "_merged"})
      expected += Missing(at_k + "directed_" + kind + "_distribution" + flavour);
  EXPECT_EQ(Load("directed"), expected);
  EXPECT_EQ(tables_.membership_dist_merged.size(), 1U);
  EXPECT_EQ(tables_.k_cliques.size(), 0U);
}

TEST_F(ResultsReader, WhatItCantStartWith) {
  std::string errors = "replaced";
  tables_.cliques = {{5, {"kept"}}};
  Read_coms(temp_.Path(), "Directed", tables_, errors);
  EXPECT_EQ(errors, "ERROR: unknown specifier 'Directed' received.\n");
  EXPECT_EQ(tables_.cliques.size(), 1U);

  errors = "before\n";
  const std::string nowhere = temp_.Path("nowhere");
  EXPECT_THROW(Read_coms(nowhere, "", tables_, errors), Xerror_msg);
  EXPECT_EQ(errors, "before\n" + Missing("nowhere/graph") + Missing("nowhere/cliques"));
  fs::create_symlink("k=9", temp_.Path("k=9"));  // a link to itself
  EXPECT_THROW(Load(), Xerror_msg);
}

}  // namespace
}  // namespace gns
