#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <sstream>

#include "Child.h"
#include "engine/Memory_limit.h"

namespace gns {
namespace {

class Inputs : public ::testing::Test {
 protected:
  /// Runs the program with a file as its standard input.
  int Run(const Words& arguments, const std::string& input = "/dev/null",
          const std::function<void()>& in_child = {}) {
    Child child(temp_, arguments, [&] {
      ::dup2(::open(input.c_str(), O_RDONLY), STDIN_FILENO);
      if (in_child) in_child();
    });
    const int code = child.Wait();
    out_ = child.Out();
    err_ = child.Err();
    return code;
  }

  /// Runs a line of a shell for which the program is a command.
  [[nodiscard]] int Run_line(const std::string& line) const {
    const std::string path = std::filesystem::path(VORLANE_PROGRAM).parent_path();
    const std::string in_place = "cd '" + temp_.Path() + "' && PATH='" + path + "':$PATH && ";
    // Nothing else runs here. NOLINTNEXTLINE(concurrency-mt-unsafe)
    return std::system((in_place + "{ " + line + "; } >.out 2>.err").c_str());
  }

  /// The lines of the graph file behind its header.
  [[nodiscard]] Words Links() const {
    std::istringstream file(temp_.Read("out/graph"));
    Words lines;
    for (std::string line; std::getline(file, line);)
      if (!line.empty() && !line.starts_with('#')) lines.push_back(line);
    return lines;
  }

  Temp_dir temp_;
  std::string out_;
  std::string err_;
};

/// Every file and command of docs/inputs.md: all are one network.
TEST_F(Inputs, AreReadAsTheDocumentTells) {
  std::ifstream document(VORLANE_SOURCE "/docs/inputs.md");
  std::size_t files = 0;
  std::size_t commands = 0;
  for (std::string line; std::getline(document, line);) {
    if (line.starts_with("```")) {
      const std::string name = line.substr(line.find(' ') + 1);
      std::string contents;
      while (std::getline(document, line) && line != "```") contents += line + "\n";
      temp_.Write(name, contents);
      ++files;
    } else if (line.starts_with("    ")) {
      std::filesystem::remove_all(temp_.Path("out"));
      EXPECT_EQ(Run_line(line), 0) << line << temp_.Read(".err");
      EXPECT_EQ(temp_.Read(".err").find("warning"), std::string::npos) << temp_.Read(".err");
      std::vector<std::string> weights;
      for (const std::string& link : Links()) weights.push_back(link.substr(link.rfind(' ') + 1));
      std::ranges::sort(weights);
      EXPECT_EQ(weights, (Words{"12", "4", "9"})) << line;
      EXPECT_NE(temp_.Read(".out").find("nodes 3, links 3, cliques 1\n"), std::string::npos)
          << line;
      ++commands;
    }
  }
  EXPECT_EQ(files, 8U);
  EXPECT_EQ(commands, 12U);
}

TEST_F(Inputs, ComeThroughStandardInput) {
  temp_.Write("net", "a b 1\nb c 2\nc a 3\n");
  temp_.Write("net.csv", "x;y\na;b\n");
  EXPECT_EQ(Run({"-i", "-", "-o", "out"}, "net"), 0) << err_;
  EXPECT_EQ(Links(), (Words{"a b", "b c", "c a"}));
  std::filesystem::remove_all(temp_.Path("out"));
  EXPECT_EQ(Run({"-i", "-", "-o", "out", "--format", "csv"}, "net.csv"), 0) << err_;
  EXPECT_EQ(Links(), (Words{"a b", "x y"}));
  EXPECT_EQ(Run({"-i", "-"}, "net"), 2);
  EXPECT_NE(err_.find("standard input has no name"), std::string::npos) << err_;
  EXPECT_EQ(Run({"-i", "-", "-o", "new"}, temp_.Path()), 1);
  EXPECT_EQ(err_, "vorlane: ERROR: standard input can't be read: it is closed, or a directory.\n");
  EXPECT_FALSE(std::filesystem::exists(temp_.Path("new")));
}

TEST_F(Inputs, AreMendedByWhatUnpacksThem) {
  ASSERT_EQ(Run_line("printf 'source target\\na b\\n' | gzip > 'n 1'"), 0);
  EXPECT_EQ(Run({"-i", "n 1", "-o", "out"}), 0);
  EXPECT_NE(err_.find(": zcat 'n 1' | sed '1s/^/#/' > NEW_FILE\n"), std::string::npos) << err_;
}

TEST_F(Inputs, AreToldOfWithAWayOut) {
  struct Case {
    std::string name, contents;
    Words arguments;
    int code;
    std::string told;
  };
  const std::vector<Case> cases{
      {"n.csv", "a,b\nAda L,c\n", {}, 1, "n.csv, line 2, column 1: expected a name that results"},
      {"n.csv", "a,b\nAda L,c\n", {}, 1, "found 'Ada L'. --blanks=_ puts '_' in their place.\n"},
      {"n.csv", "a,b\nA L,A_L\n", {"--blanks=_"}, 1, "stays apart from 'A L' with '_'"},
      {"n.csv",
       "a,b\nb\x1B,\n",
       {},
       1,
       "line 2, column 4: expected a name, but the line ends there."},
      {"n.csv",
       "a,b,\x1B" + std::string(500, 'x') + "\n",
       {"-I", "1"},
       1,
       "found '\\x1b" + std::string(199, 'x') + "...'. --columns=FROM,TO,WEIGHT tells"},
      {"n.csv", "a,b\n", {"--columns=1,x"}, 1, "expected a column 'x', found 'a,b'"},
      {"n.net", "*Vertices 2\n*Arcs\n1 2\n", {}, 0, "n.net, line 2: the links have a direction"},
      {"n.net",
       "*Vertices 2\n*Edges\n1 2\n",
       {"-D"},
       0,
       "first node to the second; leave out -D\n"},
      {"n.mtx", "2 2 1\n1 2\n", {"--columns=1,2"}, 1, "it is read as mtx. --format=csv reads it"},
      {"n.csv", std::string("a\0,\0b", 6), {}, 1, "text in UTF-16. Try iconv -f UTF-16LE"},
      {"n", "a,b\n", {}, 1, "unless --format=csv reads it as it is\n"},
      {"n",
       "*vertices 2\n",
       {},
       0,
       "another format, whose lines are read as links; tell which by "},
      {"n", "a b\n", {"--format=xls"}, 2, "--format can't be 'xls': it must be links, csv, tsv"},
      {"n.graph",
       "2 1\n3\n1\n",
       {},
       1,
       "line 2, column 1: expected a neighbour from 1 to 2, found '3'"},
      {"n.graph",
       "2 1\n22\n1\n",
       {"--format=links"},
       1,
       "line 2, column 3: expected a second name"}};
  for (const Case& c : cases) {
    temp_.Write(c.name, c.contents);
    Words arguments{"-i", c.name, "-o", "out"};
    arguments.insert(arguments.end(), c.arguments.begin(), c.arguments.end());
    EXPECT_EQ(Run(arguments), c.code) << err_;
    EXPECT_NE(err_.find(c.told), std::string::npos) << c.told << "\n" << err_;
    EXPECT_EQ(std::filesystem::exists(temp_.Path("out")), c.code == 0) << c.told;
    std::filesystem::remove_all(temp_.Path("out"));
  }
}

/// A few kilobytes that unpack to one line of gigabytes.
TEST_F(Inputs, OfABombEndAtTheMemoryLimit) {
  if (!memory_is_limited) GTEST_SKIP() << "no limit below sanitizers";
  ASSERT_EQ(Run_line("head -c 300M /dev/zero | tr '\\0' x | gzip -1 > bomb"), 0);
  EXPECT_EQ(Run({"-i", "bomb", "-o", "out"}, "/dev/null",
                [] { ::setenv("VORLANE_MEMORY_LIMIT", "100M", 1); }),
            1);
  EXPECT_TRUE(err_.starts_with("vorlane: memory ran out (limit 100 MB) in the stage \"Reading"))
      << err_;
  EXPECT_FALSE(std::filesystem::exists(temp_.Path("out")));
}

}  // namespace
}  // namespace gns
