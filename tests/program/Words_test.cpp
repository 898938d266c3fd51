#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <vector>

#include "Program_calls.h"

namespace gns {
namespace {

/// Words that ask for what stands in a results directory: of two triangles that share node c, the
/// second of which is one of four nodes, at k = 4.
class ProgramWords : public Program_calls {
 protected:
  ProgramWords() {
    temp_.Write("net", "a b 1\nb c 2\nc a 3\nc d 1\nc e 1\nc f 1\nd e 1\nd f 1\ne f 1\ng a 1\n");
    EXPECT_EQ(Run({"run", "-i", "net", "-o", "out"}), 0) << err_;
  }
};

TEST_F(ProgramWords, AnswerForPeopleAndPrograms) {
  const struct {
    Words words;
    const char* answer;
  } cases[] = {
      {{"summary", "out"},
       "undirected, 7 nodes\n\n"
       "  k  communities  largest  second  covered  covered share  overlapping  overlaps\n"
       "  4            1        4       0        4           57 %            0         0\n"
       "  3            2        4       3        6           86 %            1         1\n"},
      {{"summary", "--csv", "out"},
       "k,communities,largest,second,covered,covered share,overlapping,overlaps\n"
       "4,1,4,0,4,57 %,0,0\n3,2,4,3,6,86 %,1,1\n"},
      {{"summary", "out", "--json"},
       R"({"method":"undirected","finished":true,"nodes":7,"levels":[)"
       R"({"k":4,"communities":1,"approximate":0,"largest":4,"second_largest":0,"covered":4,)"
       R"("overlapping":0,"overlaps":0},)"
       R"({"k":3,"communities":2,"approximate":0,"largest":4,"second_largest":3,"covered":6,)"
       R"("overlapping":1,"overlaps":1}]})"
       "\n"},
      {{"which-k", "out", "--json"},
       R"({"k":3,"directory":"out","reason":"It covers 86 % of the nodes, the most before a giant )"
       R"(community swallows the others: its largest community has 1.3 times the nodes of the )"
       R"(second."})"
       "\n"},
      {{"query", "out", "c", "g"}, "c\n  k=4: 0\n  k=3: 0 1\ng: in no community\n"},
      {{"query", "--json", "out", "a"},
       R"({"node":"a","communities":[{"k":3,"community":0}]})"
       "\n"},
      {{"query", "out", "--community", "3:0"}, "a\nb\nc\n\nshares 1 with community 1\n"},
      {{"query", "out", "--community=3:0", "--json"},
       R"({"k":3,"community":0,"nodes":["a","b","c"],"overlaps":[{"community":1,"shared":1}]})"
       "\n"},
      {{"query", "out", "--overlap", "3:0:1"}, "c\n"},
      {{"tree", "out"}, "k=3 0: 3 nodes\nk=3 1: 4 nodes\n  k=4 0: 4 nodes\n"},
      {{"tree", "out", "--json"},
       R"([{"k":3,"community":0,"nodes":3,"parent":null},{"k":3,"community":1,"nodes":4,)"
       R"("parent":null},{"k":4,"community":0,"nodes":4,"parent":1}])"
       "\n"},
  };
  for (const auto& [words, answer] : cases) {
    EXPECT_EQ(Run(words), 0) << words[0] << err_;
    EXPECT_EQ(out_, answer);
    EXPECT_EQ(err_, "");
  }
}

TEST_F(ProgramWords, DiffTellsOfTwoResults) {
  EXPECT_EQ(Run({"-i", "net", "-o", "strong", "-w", "0.5"}), 0) << err_;
  temp_.Write("less", "b c\nc a\na b\n");
  EXPECT_EQ(Run({"-i", "less", "-o", "less_out"}), 0) << err_;
  EXPECT_EQ(Run({"diff", "out", "strong", "--csv"}), 0) << err_;
  EXPECT_EQ(out_,
            "k,kept,grown,shrunk,changed,merged,split,died,born,omega index,NMI\n"
            "4,1,0,0,0,0,0,0,0,1.000,1.000\n3,2,0,0,0,0,0,0,0,1.000,1.000\n");
  EXPECT_EQ(Run({"diff", "--k", "3", "out", "less_out"}), 0) << err_;
  EXPECT_EQ(out_.substr(0, out_.find("omega")),
            "        before  nodes  after  nodes  Jaccard\n"
            "  kept       0      3      0      3    1.000\n"
            "  died       1      4      -      -    0.000\n\n");
  EXPECT_EQ(Run({"diff", "less_out", "less_out", "--json"}), 0) << err_;
  EXPECT_EQ(out_,
            "[{\"k\":3,\"omega\":1,\"nmi\":1,\"changes\":[{\"fate\":\"kept\",\"before\":0,"
            "\"after\":0,\"nodes_before\":3,\"nodes_after\":3,\"jaccard\":1}]}]\n");
}

TEST_F(ProgramWords, ExportGoesToFilesOrThroughAPipe) {
  EXPECT_EQ(Run({"export", "out/", "--format", "csv,tables", "--k=4"}), 0) << err_;
  EXPECT_EQ(out_, "out.csv\nout.nodes.csv\nout.edges.csv\n");
  EXPECT_EQ(temp_.Read("out.csv"), "k,community,node,exact\n4,0,c,1\n4,0,d,1\n4,0,e,1\n4,0,f,1\n");
  EXPECT_EQ(Run({"export", "out", "--format=csv", "--k", "4", "-o", "-"}), 0) << err_;
  EXPECT_EQ(out_, temp_.Read("out.csv"));
  EXPECT_EQ(Run({"export", "out", "--format=jsonl", "-o", "out.csv"}), 1);
  EXPECT_EQ(err_,
            "vorlane: 'out.csv' exists; move it away, or replace it by vorlane export --force.\n");
  EXPECT_EQ(Run({"export", "out", "--format=jsonl", "-o", "out.csv", "--force"}), 0) << err_;
  EXPECT_EQ(temp_.Read("out.csv").substr(0, 7), "{\"k\":3,");
}

/// Wherever it stands, also where arguments lack or others would be wrong.
TEST_F(ProgramWords, HelpIsGivenBehindAWord) {
  for (const char* const word :
       {"summary", "which-k", "query", "tree", "diff", "export", "report", "parts", "help"}) {
    EXPECT_EQ(Run({"help", word}), 0) << err_;
    const std::string help = out_;
    EXPECT_EQ(help.find(std::string("Usage: vorlane ") + word), 0U) << help;
    for (const Words& words : std::vector<Words>{
             {word, "--help"}, {word, "plan", "--help"}, {word, "--help", "out", "--jason"}}) {
      EXPECT_EQ(Run(words), 0) << err_;
      EXPECT_EQ(out_, help);
      EXPECT_EQ(err_, "");
    }
  }
  EXPECT_EQ(Run({"parts", "plan", "-i", "net", "--parts", "2", "--work", "work", "--help"}), 0);
  EXPECT_FALSE(std::filesystem::exists(temp_.Path("work")));
  EXPECT_EQ(Run({"query", "out", "--", "--help"}), 2) << "the name of a node";
  EXPECT_NE(err_.find("no node '--help'"), std::string::npos) << err_;
}

TEST_F(ProgramWords, WhatIsWrongIsToldWithTheCure) {
  const struct {
    Words words;
    int code;
    const char* told;
  } cases[] = {
      {{"summary"}, 2, "usage: vorlane summary [--json] [--csv] DIR"},
      {{"summary", "out", "more"}, 2, "'more' is more than 'summary' takes"},
      {{"summary", "--jason", "out"}, 2, "no option '--jason' of 'summary'"},
      {{"summary", "--json=1", "out"}, 2, "takes no argument"},
      {{"summary", "nowhere"}, 1, "'nowhere' is no results directory"},
      {{"query", "out"}, 2, "Ask for a node"},
      {{"query", "out", "nobody"}, 2, "no node 'nobody'"},
      {{"query", "out", "--community"}, 2, "needs K:I"},
      {{"query", "out", "--community", "3"}, 2, "not of the form K:I, such as 4:0"},
      {{"query", "out", "--community", "3:2"}, 2, "no community 2 at k = 3: 2 are counted from 0"},
      {{"query", "out", "--community", "9:0"}, 2, "no level at k = 9; the levels are those of k ="},
      {{"query", "out", "--overlap", "3:0:1:2"}, 2, "not of the form K:I:J"},
      {{"diff", "out"}, 2, "'diff' needs more than that"},
      {{"export"}, 2, "usage: vorlane export --format FORMATS [--k K] [-o FILE] [--force] DIR"},
      {{"diff", "out", "out", "--k=7"}, 2, "no level at k = 7"},
      {{"export", "out"}, 2, "Which format? See: vorlane help export"},
      {{"export", "out", "--format", "png"}, 2, "no format 'png'; there are gexf, graphml, cx2"},
      {{"export", "out", "--format=csv", "--k", "3a"}, 2, "--k needs a number or 'all', not '3a'"},
      {{"export", "out", "--format=csv", "--k=5"}, 2, "no level at k = 5"},
      {{"export", "out", "--format=tables", "-o", "-"}, 2, "has several files"},
      {{"export", "out", "--format=csv", "-o", "no/such"}, 1, "'no/such' can't be written: open"},
      {{"help", "me"}, 2, "There is no word 'me'"},
  };
  for (const auto& [words, code, told] : cases) {
    EXPECT_EQ(Run(words), code) << words[0];
    EXPECT_NE(err_.find(told), std::string::npos) << err_;
    EXPECT_EQ(out_, "");
  }
}

/// Names may be anything that has no blanks.
TEST_F(ProgramWords, JsonHoldsAnyName) {
  temp_.Write("odd", "\"q\" \\b\\ \n\\b\\ \xff\x01 \n\xff\x01 \"q\" \n");
  EXPECT_EQ(Run({"-i", "odd", "-o", "odd_out"}), 0) << err_;
  EXPECT_EQ(Run({"query", "--json", "--community", "3:0", "odd_out"}), 0) << err_;
  EXPECT_NE(out_.find("\"nodes\":[\"\\\"q\\\"\",\"\\\\b\\\\\",\"\xEF\xBF\xBD\\u0001\"]"),
            std::string::npos)
      << out_;
}

TEST_F(ProgramWords, ReportWritesPagesAndPictures) {
  ASSERT_EQ(Run({"report", "out/"}), 0) << err_;
  EXPECT_EQ(out_, "out.html\n");
  const std::string page = temp_.Read("out.html");
  EXPECT_NE(page.find("<title>out · "), std::string::npos);
  EXPECT_EQ(Run({"report", "out"}), 1);
  EXPECT_EQ(err_,
            "vorlane: 'out.html' exists; move it away, or replace it by vorlane report --force.\n");
  EXPECT_EQ(Run({"report", "out", "--force", "--k", "3"}), 0) << err_;
  EXPECT_NE(temp_.Read("out.html"), page) << "another k is shown first";
  ASSERT_EQ(Run({"report", "out", "--svg", "tree"}), 0) << err_;
  EXPECT_EQ(out_, "out.tree.svg\n");
  const std::string tree = temp_.Read("out.tree.svg");
  ASSERT_EQ(Run({"report", "out", "--svg=tree", "-o", "-"}), 0) << err_;
  EXPECT_EQ(out_, tree);
  ASSERT_EQ(Run({"-i", "net", "-o", "again", "--report", "again.html"}), 0) << err_;
  EXPECT_NE(temp_.Read("again.html").find("<title>net · "), std::string::npos);
  EXPECT_EQ(Run({"-i", "net", "-o", "third", "--report=again.html"}), 1) << "the run went on";
  EXPECT_FALSE(std::filesystem::exists(temp_.Path("third")));
}

TEST_F(ProgramWords, ReportTellsWhatIsWrong) {
  std::filesystem::create_directory(temp_.Path("foreign"));
  const struct {
    Words words;
    int code;
    const char* told;
  } cases[] = {
      {{"report"}, 2, "'report' needs more than that."},
      {{"report", "foreign"}, 1, "foreign"},
      {{"report", "out", "--svg", "pie"}, 2, "There is no picture 'pie'; there are tree, graph"},
      {{"report", "out", "--k", "9"}, 2, "There is no level at k = 9; the levels are those of k"},
      {{"report", "out", "-o", "-"}, 2, "Standard output takes a picture, no page"},
      {{"report", "out", "-o", "none/page.html"}, 1, "'none/page.html' can't be written"},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(Run(c.words), c.code) << c.told;
    EXPECT_NE(err_.find(c.told), std::string::npos) << err_;
  }
  std::filesystem::remove(temp_.Path("out/k=3/communities"));
  EXPECT_EQ(Run({"report", "out"}), 1);
  EXPECT_NE(err_.find("k=3/communities"), std::string::npos) << err_;
  EXPECT_FALSE(std::filesystem::exists(temp_.Path("out.html")));
}

TEST_F(ProgramWords, ReportOfAnUnfinishedRunSaysSo) {
  temp_.Write("out/.unfinished", "");
  EXPECT_EQ(Run({"report", "out", "-o", "page.html"}), 0) << err_;
  EXPECT_EQ(err_,
            "vorlane: warning: the run in 'out' has not finished; what it has found so far is "
            "shown.\n");
}

}  // namespace
}  // namespace gns
