#include <gtest/gtest.h>

#include <functional>
#include <thread>
#include <vector>

#include "Directory_contents.h"
#include "Linked_groups.h"
#include "Temp_dir.h"
#include "engine/Find_coms.h"
#include "vorlane/vorlane.h"

namespace vorlane {
namespace {

constexpr std::uint64_t parts = 4;

/// Does a work for each part, all at once.
void In_threads(const std::function<void(std::uint64_t part)>& work) {
  std::vector<std::thread> threads;
  for (std::uint64_t part = 1; part <= parts; ++part) threads.emplace_back(work, part);
  for (std::thread& thread : threads) thread.join();
}

Error_kind Thrown_kind(const std::function<void()>& work) {
  try {
    work();
  } catch (const Error& error) {
    return error.Kind();
  }
  ADD_FAILURE() << "nothing was thrown";
  return Error_kind::other;
}

TEST(ThreadsParts, DoARunTogether) {
  const gns::Temp_dir temp;
  gns::Run_parameters single = {temp.Write("links", gns::Linked_groups(18, 3)), temp.Path("one")};
  bool approximation_needed = false;
  gns::Run_summary summary;
  ASSERT_EQ(gns::Find_coms(single, approximation_needed, summary), gns::run_finished);

  const std::string work = temp.Path("work");
  Plan_parts(single.input_file, {}, {}, temp.Path("out"), work, parts);
  In_threads([&](std::uint64_t part) { Search_part(work, part); });
  EXPECT_EQ(Status_of_parts(work).search, std::vector(parts, Part_state::done));
  EXPECT_EQ(Gather_parts(work), summary.exact_cliques);
  In_threads([&](std::uint64_t part) { Find_levels_of_part(work, part); });
  EXPECT_FALSE(Status_of_parts(work).finished);
  EXPECT_TRUE(Results::Open(Finish_parts(work)).Is_finished());
  EXPECT_TRUE(Status_of_parts(work).finished);
  EXPECT_TRUE(gns::Contents_of(temp.Path("out")) == gns::Contents_of(temp.Path("one")));
}

TEST(Parts, ReadAnyFormatAndNamesWithBlanks) {
  const gns::Temp_dir temp;
  const std::string work = temp.Path("work");
  const std::string table = temp.Write("table", "id,to,from\n1,Ada L,b\n2,b,c\n3,c,Ada L\n");
  Link_options how;
  how.format = "csv";
  how.columns = {"from", "2"};
  const auto plan = [&] { Plan_parts(table, how, {}, temp.Path("out"), work, 1); };
  EXPECT_EQ(Thrown_kind(plan), Error_kind::input) << "names have blanks";
  for (const char* wrong : {" ", "#", "ab", "\xc3\xa4\xc3\xa4"}) {
    how.blanks = wrong;
    EXPECT_EQ(Thrown_kind(plan), Error_kind::parameters) << wrong;
  }
  how.blanks = "\xc3\xa4";
  plan();
  Search_part(work, 1);
  Gather_parts(work);
  Find_levels_of_part(work, 1);
  EXPECT_TRUE(Results::Open(Finish_parts(work)).Places_of("Ada\xc3\xa4L").has_value());
}

TEST(Parts, EndByTheirControlAndTellWhatIsWrong) {
  const gns::Temp_dir temp;
  const std::string links = temp.Write("links", gns::Linked_groups(18, 3));
  const std::string work = temp.Path("work");
  const std::string out = temp.Path("out");
  Options hasty;
  hasty.time_limit = 1;
  EXPECT_EQ(Thrown_kind([&] { Plan_parts(links, {}, hasty, out, work, parts); }),
            Error_kind::parameters);
  EXPECT_EQ(Thrown_kind([&] { Plan_parts(links, {}, {}, out, work, 0); }), Error_kind::parameters);
  EXPECT_EQ(Thrown_kind([&] { Plan_parts(temp.Path("no"), {}, {}, out, work, parts); }),
            Error_kind::input);
  Control control;
  control.Stop();
  EXPECT_EQ(Thrown_kind([&] { Plan_parts(links, {}, {}, out, work, parts, control); }),
            Error_kind::stopped);
  Plan_parts(links, {}, {}, out, work, parts);
  EXPECT_EQ(Thrown_kind([&] { Search_part(work, 1, control); }), Error_kind::stopped);
  EXPECT_EQ(Status_of_parts(work).search, std::vector(parts, Part_state::missing));
  EXPECT_EQ(Thrown_kind([&] { Gather_parts(work); }), Error_kind::other);
  EXPECT_EQ(Thrown_kind([&] { Search_part(work, parts + 1); }), Error_kind::other);
  EXPECT_EQ(Thrown_kind([&] { Finish_parts(temp.Path("nowhere")); }), Error_kind::other);
}

}  // namespace
}  // namespace vorlane
