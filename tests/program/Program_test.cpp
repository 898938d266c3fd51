#include <sys/resource.h>

#include <algorithm>

#include "Child.h"
#include "Directory_contents.h"
#include "Linked_groups.h"
#include "engine/Memory_limit.h"

namespace gns {
namespace {

void Limit(int resource, rlim_t value) {
  const struct rlimit limit = {value, value};
  ::setrlimit(static_cast<__rlimit_resource>(resource), &limit);
}

class Program : public ::testing::Test {
 protected:
  /// Runs the program to its end and keeps what it printed.
  int Run(const Words& arguments, const std::function<void()>& in_child = {}) {
    Child child(temp_, arguments, in_child);
    const int code = child.Wait();
    out_ = child.Out();
    err_ = child.Err();
    return code;
  }

  /// What stands in the directory of the test, but for the two output files.
  [[nodiscard]] Words Entries() const {
    Words names;
    for (const auto& entry : std::filesystem::directory_iterator(temp_.Path()))
      if (!entry.path().filename().string().starts_with('.'))
        names.push_back(entry.path().filename());
    std::ranges::sort(names);
    return names;
  }

  /// The links of the graph file.
  [[nodiscard]] std::string Links() const {
    const std::string file = temp_.Read("out/graph");
    return file.substr(std::min(file.find("\n\n") + 2, file.size()));
  }

  Temp_dir temp_;
  std::string net_ = temp_.Write("net", "a b 1\nb c 2\nc a 3\nc d 4\nd e 5\ne c 6\n");
  std::string out_;
  std::string err_;
};

TEST_F(Program, TellsWhatItFound) {
  ASSERT_EQ(Run({"-i", "net", "-o", "new/out", "-t", "100"}), 0);
  EXPECT_TRUE(out_.starts_with(
      "Process ended succesfully.\n\n  nodes 5, links 6, cliques 2\n\n"
      "  k  communities  largest  second  covered  covered share  overlapping  "
      "overlaps\n"
      "  3            2        3       3        5          100 %            1      "
      "   1\n\n  "))
      << out_;
  EXPECT_TRUE(out_.ends_with(" MB\n  results in " + temp_.Path("new/out") + "\n")) << out_;
  EXPECT_EQ(err_, "");
  EXPECT_EQ(Entries(), (Words{"net", "new"}));
  EXPECT_EQ(temp_.Read("new/out/k=3/communities"),
            "# The communities at k=3\n# from " + net_ +
                "\n# at no lower link weight threshold,\n# and at no upper link weight threshold.\n"
                "# Links were treated as undirected.\n"
                "# The maximal allowed time per node during clique search was 100.000000 secs.\n\n"
                "0: a b c \n1: c d e \n");
}

/// Two triangles in a clique of four, at both k the same; and what is asked for in long words.
TEST_F(Program, TellsOfSeveralKInOneRowAndInOtherForms) {
  temp_.Write("clique", "a b\na c\na d\nb c\nb d\nc d\n");
  ASSERT_EQ(Run({"-i", "clique", "-o", "out", "--export", "csv,gexf"}), 0) << err_;
  EXPECT_NE(out_.find("\n  3-4            1        4       0        4          100 %"),
            std::string::npos)
      << out_;
  EXPECT_NE(out_.find("\n  k = 4: "), std::string::npos) << out_;
  EXPECT_EQ(Entries(), (Words{"clique", "net", "out", "out.csv", "out.gexf"}));
  ASSERT_EQ(Run({"-i", "clique", "-o", "out2", "--json"}), 0);
  EXPECT_EQ(out_.substr(0, 59),
            "{\"method\":\"undirected\",\"finished\":true,\"nodes\":4,\"levels\":[");
  EXPECT_EQ(err_, "Process ended succesfully.\n");
  temp_.Write("out3.csv", "mine");
  EXPECT_EQ(Run({"-i", "clique", "-o", "out3", "--export=csv"}), 1);
  EXPECT_EQ(Entries().size(), 7U) << "the run went on";
}

TEST_F(Program, EndsWithItsExitCodeAndMessage) {
  struct Case {
    Words arguments;
    int code;
    std::string printed;
    std::string told;  ///< on standard error
  };
  std::filesystem::create_directories(temp_.Path("full/k=3"));
  std::filesystem::create_directories(temp_.Path("dir"));
  const Words before = Entries();
  for (const Case& c : std::vector<Case>{
           {{"-h"}, 0, " When using vorlane you", ""},
           {{"-i", "none", "--help"}, 0, "\nExit codes:\n  0 ", ""},
           {{"--version", "-q"}, 0, "Vorlane 1.", ""},
           {{}, 2, "You must specify an input file.\n", "You must specify an input file.\n"},
           {{"-i", "net", "-q"},
            2,
            "unknown parameter in parameter list! (Check_keys()).\n",
            "'-q' is no switch; --help shows all that there are\n"},
           {{"-i", "net", "-w", "3", "-W", "2"},
            2,
            " The sepcified lower threshold",
            "The sepcified lower threshold"},
           {{"-i", "net", "--progress=0"}, 2, "", "can't be '0'.\n"},
           {{"-i", "none"},
            1,
            "ERROR : File not found: 'none' \n",
            temp_.Path("none") + ": No such file or directory\n"},
           {{"-i", "dir"},
            1,
            "ERROR : File not found: 'dir' \n",
            temp_.Path("dir") + ": Is a directory\n"},
           {{"-i", "net", "-o", "full"},
            1,
            "already exists and it is non-empty.\n",
            temp_.Path("full") + ", which holds something (1 entries). Choose another"},
           {{"-i", "net", "-o", ""}, 1, "ERROR: the output directory has no name.\n", "no name"},
           {{"-i", "net", "-I", "1", "-k", "2"},
            1,
            "-clique size must be at least 3",
            "at least 3"},
           {{"-i", "net", "-o", "net"}, 1, "it is the input file", "it is the input file"},
           {{"-i", "net", "-o", "dir/../net/out"}, 1, "ERROR: Make_dir() called with", ""}}) {
    EXPECT_EQ(Run(c.arguments), c.code) << out_;
    EXPECT_NE(out_.find(c.printed), std::string::npos) << out_;
    EXPECT_NE(err_.find(c.told), std::string::npos) << err_;
    EXPECT_EQ(err_.empty(), c.code == 0) << err_;
    EXPECT_EQ(Entries(), before);
  }
}

TEST_F(Program, ReadsWhatLinkFilesHold) {
  const std::string long_name(1 << 20U, 'x');
  const std::vector<std::pair<std::string, std::string>> cases{
      {"", ""},
      {"ab \xff\r\n# remark\n\nb c", "ab \xff\nb c\n"},
      {"a b\n#" + std::string(5000, '-') + "\nc d" + std::string(1, '\0'),
       "a b\nc d" + std::string(1, '\0') + "\n"},
      {"a b\n" + long_name + " y\n", "a b\n" + long_name + " y\n"}};
  for (const auto& [contents, links] : cases) {
    std::filesystem::remove_all(temp_.Path("out"));
    temp_.Write("odd", contents);
    EXPECT_EQ(Run({"-i", "odd", "-o", "out"}), 0) << out_.substr(0, 200);
    EXPECT_TRUE(Links() == links) << contents.substr(0, 200);
  }
}

/// Links that can't be meant as they stand: what is said of them on standard error.
TEST_F(Program, TellsWhatIsOddAboutLinks) {
  using namespace std::string_literals;
  struct Case {
    std::string contents;
    Words arguments;
    int code;
    std::vector<std::string> told;
  };
  const std::vector<Case> cases{
      {"\xEF\xBB\xBF"
       "a b\n"s,
       {},
       0,
       {"line 1: the mark of UTF-8", "tail -c +4 < odd"}},
      {"a b\rb c\r", {}, 0, {"line 1: lines end with a carriage return alone", "tr '\\r'"}},
      {"# x\nsource target\na b\n", {}, 0, {"line 2: this looks like a header", "sed '2s/^/#/'"}},
      {"person other w\na b 1\n", {}, 0, {"line 1: this looks like a header"}},
      {"a b\n\"c\" d\n\"e\" f\n", {}, 0, {"line 2: quotation marks"}},
      {"Ada, Bruno, 9\n", {}, 0, {"commas, semicolons or bars"}},
      {"a b 1\nb c 0,5\n", {"-w", "0.1"}, 0, {"line 2: the weight is read up to its comma"}},
      {"*Vertices 2\n1 \"a\"\n2 \"b\"\n", {}, 0, {"a file of another format"}},
      {"% size\n", {}, 0, {"line 1: this looks like a comment"}},
      {"a -> b\n", {}, 0, {"line 1: the arrow"}},
      {"Ada L\tBruno\n", {}, 0, {"line 1: a name between tabs holds blanks"}},
      {"# none\n", {}, 0, {"there are no links in odd"}},
      {"a a\n", {}, 0, {"of 1 links in odd each is one of a node with itself"}},
      {"a b 2\nc d 0.5\n", {"-w", "2"}, 0, {"none is within", "go from 0.5 to 2\n"}},
      {"a b\nb c\nc a\n", {"-k", "4"}, 0, {"at k = 4, as the largest clique has 3 nodes"}},
      {"a b\n", {}, 0, {"as no three nodes are all linked"}},
      {"BZh91AY&SY x\n", {}, 1, {"a bzip2 file. Try bzcat odd | vorlane -i /dev/stdin"}},
      {"PK\3\4 x\n", {}, 1, {"a zip archive"}},
      {"\xFF\xFE"
       "a\0 \0b\0"s,
       {},
       1,
       {"text in UTF-16. Try iconv -f UTF-16 "}},
      {"a\0 \0b\0\n\0"s, {}, 1, {"text in UTF-16. Try iconv -f UTF-16LE "}},
      {"a b\n"s + std::string(4091, 'c') + "\0 d"s, {}, 1, {"byte 4096 is a zero"}},
      {"a b\n\t \xC3\xA9  \n", {}, 1, {"odd, line 2, column 4: expected a second name, but"}},
      {"a,b,1\n", {}, 1, {"Fields are separated by blanks or tabs: tr ',;|' ' ' < odd"}},
      {"a b\x1B x1\n", {"-I", "1"}, 1, {"line 1, column 6: expected a number", "found 'x1'."}},
      {"a b\n", {"-w", "1"}, 1, {"Runs with -w, -W or -I need a weight"}}};
  temp_.Write("odd", "");
  const Words before = Entries();
  for (const Case& c : cases) {
    temp_.Write("odd", c.contents);
    Words arguments{"-i", "odd", "-o", "out"};
    arguments.insert(arguments.end(), c.arguments.begin(), c.arguments.end());
    EXPECT_EQ(Run(arguments), c.code) << out_;
    for (const std::string& part : c.told) {
      const std::size_t at = err_.find(part);
      EXPECT_TRUE(at != std::string::npos && err_.find(part, at + 1) == std::string::npos)
          << part << "\n"
          << err_;
    }
    EXPECT_TRUE(c.code == 0 || Entries() == before) << c.told[0];
    std::filesystem::remove_all(temp_.Path("out"));
  }
}

TEST_F(Program, CutsALongWrongLine) {
  temp_.Write("odd", std::string(1 << 20U, 'x'));
  EXPECT_EQ(Run({"-i", "odd"}), 1);
  EXPECT_TRUE(out_.ends_with("x... (1044480 more bytes left out)\n")) << out_.size();
  EXPECT_LT(err_.size(), 500U);
}

TEST_F(Program, UnreadableFile) {
  if (::geteuid() == 0) GTEST_SKIP() << "root may read everything";
  ::chmod(net_.c_str(), 0);
  EXPECT_EQ(Run({"-i", "net"}), 1);
  EXPECT_EQ(out_, "ERROR : File not found: 'net' \n");
}

TEST_F(Program, ListsFilesThatCouldNotBeWritten) {
  temp_.Write("big", Linked_groups(12, 3));
  EXPECT_EQ(Run({"-i", "big", "-o", "out", "-k", "5"}, [] { Limit(RLIMIT_FSIZE, 400); }), 1);
  EXPECT_EQ(out_, "Process ended succesfully.\n");
  EXPECT_NE(err_.find("\n  out/graph: write: File too large\n"), std::string::npos) << err_;
  EXPECT_TRUE(err_.ends_with("; out/.unfinished tells so.\n")) << err_;
  EXPECT_EQ(Entries(), (Words{"big", "net", "out"}));
}

TEST_F(Program, OneOfTwoRunsIntoADirectoryGoesOn) {
  ASSERT_EQ(Run({"-i", "net", "-o", "alone"}), 0);
  const auto alone = Contents_of(temp_.Path("alone"));
  for (int pair = 0; pair < 10; ++pair) {
    Child one(temp_, {"-i", "net", "-o", "out"});
    Child other(temp_, {"-i", "net", "-o", "out"});
    EXPECT_EQ(one.Wait() + other.Wait(), 1);
    EXPECT_EQ(Contents_of(temp_.Path("out")), alone);
    std::filesystem::remove_all(temp_.Path("out"));
  }
}

TEST_F(Program, LossOfItsOwnOutput) {
  EXPECT_EQ(Run({"-i", "net", "-o", "out"}, [] { Child::Redirect("/dev/full", 1); }), 1);
  EXPECT_NE(err_.find("standard output: No space left"), std::string::npos) << err_;
  const auto broken_pipe = [] {
    int ends[2];
    if (::pipe(ends) == 0) ::dup2(ends[1], 1);
    ::close(ends[0]);
  };
  EXPECT_EQ(Run({"-i", "net", "-o", "out2"}, broken_pipe), 0);
  EXPECT_EQ(err_, "");
}

TEST_F(Program, RunsWithASmallStack) {
  if (!memory_is_limited) GTEST_SKIP() << "sanitizers need more";
  temp_.Write("complete", Linked_groups(1500, 1));
  EXPECT_EQ(
      Run({"-i", "complete", "-o", "out", "-k", "1000000"}, [] { Limit(RLIMIT_STACK, 1 << 18); }),
      0);
  EXPECT_NE(out_.find("nodes 1500, links 1124250, cliques 1\n"), std::string::npos) << out_;
}

TEST_F(Program, EndsInGoodOrderWhenMemoryRunsOut) {
  if (!memory_is_limited) GTEST_SKIP() << "no limit below sanitizers";
  temp_.Write("hard", Linked_groups(51, 3));
  EXPECT_EQ(Run({"-i", "hard", "-o", "out"}, [] { ::setenv("VORLANE_MEMORY_LIMIT", "100M", 1); }),
            1);
  EXPECT_EQ(out_, "std::bad_alloc\n");
  EXPECT_TRUE(
      err_.starts_with("vorlane: memory ran out (limit 100 MB) in the stage \"Locating "
                       "cliques:\", with 0 cliques found.\n"))
      << err_;
  EXPECT_TRUE(std::filesystem::exists(temp_.Path("out/.unfinished")));
  EXPECT_EQ(Run({"-i", "net"}, [] { ::setenv("VORLANE_MEMORY_LIMIT", "1T", 1); }), 1);
  EXPECT_TRUE(out_.starts_with("VORLANE_MEMORY_LIMIT is '1T', but must")) << out_;
}

}  // namespace
}  // namespace gns
