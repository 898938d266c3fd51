#include "cli/terminal/Progress_figures.h"

#include <gtest/gtest.h>

#include <limits>

namespace gns {
namespace {

using Lines = std::vector<std::string>;

TEST(ProgressFigures, NoNumberIsCut) {
  Progress_figures figures;
  figures.report = {"Locating \"cliques\":", "66 of 4039 nodes to do (85.62% done)"};
  figures.share_done = 0.25;
  figures.seconds_left = 7.2;
  figures.cliques = 1212973;
  figures.nodes_left = 66;
  figures.failed_in_a_row = 7;
  figures.seconds = 2.5;
  figures.peak_memory = std::uint64_t{412} << 20U;
  const std::pair<std::size_t, Lines> cases[] = {
      {40,
       {figures.report[0], figures.report[1], "nodes left: 66, failed in a row: 7",
        "cliques so far: 1212973", "work done: 25.0%, about 8 s left",
        "2.50 s, peak memory 412 MB"}},
      {20,
       {figures.report[0], "66 of 4039 nodes to", "left: 66, failed: 7", "cliques: 1212973",
        "25.0%, 8 s left", "2.50 s, 412 MB"}},
      {8, {"Locating", "66 of", "left: 66", "25.0%", "2.50 s"}},
      {1, {}}};
  for (const auto& [width, lines] : cases) EXPECT_EQ(In_lines(figures, width), lines);
  EXPECT_EQ(In_one_line(figures),
            "Locating \"cliques\": 66 of 4039 nodes to do (85.62% done), nodes left: 66, failed in "
            "a row: 7, cliques so far: 1212973, work done: 25.0%, about 8 s left, 2.50 s, peak "
            "memory 412 MB");
  figures.seconds_left.reset();
  figures.files = 16;
  figures.entries = 3;
  figures.bytes = 5713403115;
  figures.pair_bytes = 4;
  EXPECT_EQ(In_json(figures),
            R"j({"seconds":2.50,"report":["Locating \"cliques\":",)j"
            R"j("66 of 4039 nodes to do (85.62% done)"],"cliques":1212973,"k_cliques":0,)j"
            R"j("nodes_left":66,"failed_in_a_row":7,"peak_memory":432013312,"work_done":0.2500,)j"
            R"j("seconds_left":null,"bound":{"entries":3,"files":16,"bytes":5713403115,)j"
            R"j("pair_bytes":4}})j");
  EXPECT_NE(In_one_line(figures).find(", work done: 25.0%, to write at most: 16 files, 5.4 GB, "),
            std::string::npos);
}

TEST(ProgressFigures, TheTimeLeftShrinksAtAnEvenPace) {
  Time_left time_left;
  const struct {
    double seconds;
    external_control::Work_done::Share work;
    std::optional<double> left;
  } cases[] = {{0.0, {1, 0, 1000}, {}},      {0.5, {1, 500, 1000}, {}},  // too early
               {2.0, {1, 40, 1000}, {}},                                 // too little
               {2.0, {1, 100, 1000}, 18.0},  {4.0, {1, 200, 1000}, 16.0},
               {20.0, {1, 1000, 1000}, 0.0}, {30.0, {2, 100, 1100}, {}},  // another stage
               {32.0, {2, 600, 1100}, 2.0},  {45.0, {2, 90, 1100}, {}},
               {50.0, {3, 0, 100000}, {}},   {61.0, {3, 1000, 100000}, 1089.0},
               {62.0, {0, 0, 0}, {}}};
  for (const auto& [seconds, work, left] : cases) {
    const std::optional<double> told = time_left.At(seconds, work);
    EXPECT_EQ(told, left) << seconds << ' ' << told.value_or(-1);
  }
}

}  // namespace
}  // namespace gns
