#include <gtest/gtest.h>

#include <csignal>
#include <filesystem>

#include "Directory_contents.h"
#include "Linked_groups.h"
#include "Program_calls.h"

namespace gns {
namespace {

class ProgramParts : public Program_calls {
 protected:
  ProgramParts() { temp_.Write("net", "a b 1\nb c 2\nc a 3\nc d 1\nc e 1\nd e 5\ng a 1\n"); }
};

/// -W is the folder, unless a number stands behind it.
TEST_F(ProgramParts, TakeTheSwitchesOfARun) {
  EXPECT_EQ(Run({"-i", "net", "-o", "one", "-W", "4", "-k", "3", "--progress=none"}), 0) << err_;
  const std::string told = out_;
  EXPECT_EQ(Run({"parts", "plan", "-i", "net", "-o", "out", "-W", "work", "-W", "4", "--parts=2",
                 "-k", "3", "--progress=none"}),
            0)
      << err_;
  EXPECT_EQ(out_,
            "planned in work: 2 parts\n"
            "next, for each I from 1 to 2: vorlane parts search --work work --part I\n");
  EXPECT_EQ(Run({"parts", "search", "-W", "work", "--part", "1"}), 0) << err_;
  EXPECT_EQ(Run({"parts", "search", "--part=2", "--work=work"}), 0) << err_;
  EXPECT_EQ(Run({"parts", "gather", "--work", "work"}), 0) << err_;
  EXPECT_EQ(Run({"parts", "status", "--work", "work", "--json"}), 0) << err_;
  EXPECT_EQ(out_, R"({"output":")" + temp_.Path("out") +
                      R"(","finished":false,"parts":2,"search":["done","done"],"gather":"done",)"
                      R"("levels":["missing","done"],"next":[)"
                      R"("vorlane parts levels --work work --part 1"]})"
                      "\n");
  EXPECT_EQ(Run({"parts", "finish", "--work", "work"}), 1);
  EXPECT_NE(err_.find("'work/levels.1.done' is missing: vorlane parts levels"), std::string::npos);
  EXPECT_EQ(Run({"parts", "levels", "--work", "work", "--part", "1"}), 0) << err_;
  EXPECT_EQ(Run({"parts", "levels", "--work", "work", "--part", "2"}), 0) << err_;
  EXPECT_EQ(Run({"parts", "finish", "--work", "work"}), 0) << err_;
  EXPECT_EQ(out_.substr(0, out_.find(" s, peak")).substr(0, 100), told.substr(0, 100));
  EXPECT_EQ(Contents_of(temp_.Path("out")), Contents_of(temp_.Path("one")));
  EXPECT_EQ(Run({"parts", "finish", "--work", "work", "--json"}), 0);
  EXPECT_EQ(out_.substr(0, 40), R"({"method":"undirected","finished":true,")");
}

TEST_F(ProgramParts, AreLeftForLaunchers) {
  EXPECT_EQ(Run({"parts", "plan", "-i", "net", "-o", "out", "--work", "work", "--parts", "5",
                 "--slurm", "--progress=none"}),
            0)
      << err_;
  EXPECT_EQ(out_,
            "planned in work: 5 parts\nnext: sh " + temp_.Path("work/slurm/submit.sh") + "\n");
  EXPECT_NE(temp_.Read("work/slurm/search.sbatch")
                .find(std::filesystem::canonical(VORLANE_PROGRAM).string()),
            std::string::npos);
  EXPECT_EQ(Run({"parts", "search", "--work", "work", "--part", "2"}), 0) << err_;
  EXPECT_EQ(Run({"parts", "status", "--work", "work", "--left", "search"}), 0) << err_;
  EXPECT_EQ(out_, "1,3-5\n");
  EXPECT_EQ(Run({"parts", "status", "--work", "work", "--left", "plan"}), 2);
  EXPECT_NE(err_.find("search, gather, levels or finish, not 'plan'"), std::string::npos);
}

TEST_F(ProgramParts, WhatIsWrongIsToldWithTheCure) {
  const struct {
    Words words;
    int code;
    const char* told;
  } cases[] = {
      {{"parts"}, 2, "usage: vorlane parts --work DIR"},
      {{"parts", "plan"}, 2, "Which folder do the parts meet in? Give it by --work DIR"},
      {{"parts", "merge", "--work", "w"}, 2, "There is no step 'merge'; there are plan, search"},
      {{"parts", "plan", "--work", "w", "-i", "net"}, 2, "'plan' needs --parts with a number"},
      {{"parts", "plan", "--work", "w", "--parts", "2x", "-i", "net"}, 2, "from 1 on, not '2x'"},
      {{"parts", "plan", "--work", "w", "--parts", "2", "-i", "net", "-t", "1"},
       2,
       "takes no time limit (-t)"},
      {{"parts", "plan", "--work", "w", "--parts", "2", "-i", "net", "--export", "csv"},
       2,
       "exported and shown when they are finished"},
      {{"parts", "plan", "--work", "w", "--parts", "2", "-i", "net", "--jobs", "2"},
       2,
       "A part is done by one core"},
      {{"parts", "plan", "--work", "w", "--parts", "2", "-o", "out"}, 2, "an input file"},
      {{"parts", "plan", "--work", "w", "--parts", "2", "-i", "none"}, 1, "none"},
      {{"parts", "plan", "--work", "w", "--parts", "2", "-i", "net", "-o", "."}, 1, "non-empty"},
      {{"parts", "search", "--work", "w", "--part", "1"}, 1, "'w/graph.bin' is missing"},
      {{"parts", "search", "--work", "w"}, 2, "'search' needs --part with a number from 1 on"},
      {{"parts", "search", "--work", "w", "--part", "1", "-D"}, 2, "'-D' is more than 'search'"},
  };
  for (const auto& [words, code, told] : cases) {
    EXPECT_EQ(Run(words), code) << words.back();
    EXPECT_NE(err_.find(told), std::string::npos) << err_;
  }
  EXPECT_FALSE(std::filesystem::exists(temp_.Path("w")));
}

/// A worker that is told to end leaves nothing of its part.
TEST_F(ProgramParts, StopInGoodOrder) {
  temp_.Write("hard", Linked_groups(60, 3));
  EXPECT_EQ(Run({"parts", "plan", "-i", "hard", "-o", "out", "--work", "work", "--parts", "1"}), 0);
  const auto before = Contents_of(temp_.Path("work"));
  Child child(temp_, {"parts", "search", "--work", "work", "--part", "1"});
  for (int i = 0; i < 1000 && Contents_of(temp_.Path("work")).size() == before.size(); ++i)
    ::usleep(1000);
  EXPECT_GT(Contents_of(temp_.Path("work")).size(), before.size());
  child.Signal(SIGTERM);
  EXPECT_EQ(child.Wait(), 130);
  EXPECT_EQ(Contents_of(temp_.Path("work")), before);
}

}  // namespace
}  // namespace gns
