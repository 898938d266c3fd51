#include "cli/Progress_figures.h"

#include <gtest/gtest.h>

#include <limits>

namespace gns {
namespace {

using Lines = std::vector<std::string>;

TEST(ProgressFigures, NoNumberIsCut) {
  const Progress_figures figures = {
      {"Locating \"cliques\":", "66 of 4039 nodes to do (85.62% done)"},
      1212973,
      0,
      66,
      7,
      2.5,
      std::uint64_t{412} << 20U};
  const std::pair<std::size_t, Lines> cases[] = {
      {40,
       {figures.report[0], figures.report[1], "nodes left: 66, failed in a row: 7",
        "cliques so far: 1212973", "2.50 s, peak memory 412 MB"}},
      {20,
       {figures.report[0], "66 of 4039 nodes to", "left: 66, failed: 7", "cliques: 1212973",
        "2.50 s, 412 MB"}},
      {8, {"Locating", "66 of", "left: 66", "2.50 s"}},
      {1, {}}};
  for (const auto& [width, lines] : cases) EXPECT_EQ(In_lines(figures, width), lines);
  EXPECT_EQ(In_one_line(figures),
            "Locating \"cliques\": 66 of 4039 nodes to do (85.62% done), nodes left: 66, failed in "
            "a row: 7, cliques so far: 1212973, 2.50 s, peak memory 412 MB");
  EXPECT_EQ(In_json(figures),
            R"j({"seconds":2.50,"report":["Locating \"cliques\":",)j"
            R"j("66 of 4039 nodes to do (85.62% done)"],"cliques":1212973,"k_cliques":0,)j"
            R"j("nodes_left":66,"failed_in_a_row":7,"peak_memory":432013312})j");
}

}  // namespace
}  // namespace gns
