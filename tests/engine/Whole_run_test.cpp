#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <map>
#include <string>
#include <tuple>
#include <vector>

#include "Directory_contents.h"
#include "Sample_runs.h"
#include "Temp_dir.h"
#include "control/Clique_find_ext_cont.h"
#include "engine/Find_coms.h"
#include "engine/Run_stages.h"
#include "foundation/io/File_faults.h"

namespace gns {
namespace {

namespace fs = std::filesystem;

/// The files of tests/expected/NAME/results, with the path of the input in its place.
std::map<std::string, std::string> Expected_files(const std::string& name,
                                                  const std::string& input_file) {
  const std::string placeholder = "{INPUT}";
  std::map<std::string, std::string> files =
      Contents_of(std::string(VORLANE_EXPECTED_DIR) + "/" + name + "/results");
  for (auto& [path, text] : files)
    text.replace(text.find(placeholder), placeholder.size(), input_file);
  return files;
}

TEST(WholeRun, LeavesTheExpectedDirectory) {
  struct Case {
    std::string name;
    bool use_thresholds;
    bool use_single_k;
    bool use_intensity;
  };
  for (const Case& c : std::vector<Case>{{"six_links", false, false, false},
                                         {"overlapping", false, false, false},
                                         {"thresholds", true, true, false},
                                         {"intensity", false, false, true}}) {
    const Temp_dir temp;
    const std::string input = Sample_links(c.name);
    const std::string out = temp.Path("new/out");
    bool approximation_needed = true;
    EXPECT_EQ(Find_coms(input, out, c.use_thresholds, 0.5, c.use_thresholds, 2e6, false,
                        c.use_intensity, 9, false, -1, c.use_single_k, 5, approximation_needed),
              "Process ended succesfully.");
    EXPECT_FALSE(approximation_needed);
    EXPECT_EQ(Contents_of(out), Expected_files(c.name, input)) << c.name;
    EXPECT_EQ(Read_state_report(), " done.\n");
  }
}

TEST(WholeRun, CoversHardNodesByApproximateCliques) {
  const Temp_dir temp;
  const Run_parameters parameters = {Sample_links("time_limit"), temp.Path("out")};
  const Run_summary summary = Run_short_of_time(parameters, nullptr);
  EXPECT_EQ(summary.exact_cliques, 3U);
  EXPECT_EQ(summary.approximate_cliques, 5U);
  EXPECT_EQ(summary.extractions.front().k, 5U);
  EXPECT_EQ(summary.extractions.front().statistics.all.size.at(5), 1U);
  EXPECT_EQ(Contents_of(parameters.output_dir),
            Expected_files("time_limit", parameters.input_file));
}

/// A run on a small network of its own.
class SmallRun : public ::testing::Test {
 protected:
  SmallRun() {
    parameters_.input_file =
        temp_.Write("links", "a b\na c\na d\nb c\nb d\nc d\nc e\nd e\ne f\nf g\ne g\n");
    parameters_.output_dir = temp_.Path("out");
  }
  ~SmallRun() override { Reset_stop_process(); }

  std::string Run() {
    summary_ = {};
    return Find_coms(parameters_, approximation_needed_, summary_);
  }
  [[nodiscard]] std::vector<std::string> Written() const {
    std::vector<std::string> names;
    if (!fs::exists(parameters_.output_dir)) return names;
    for (const auto& [name, text] : Contents_of(parameters_.output_dir)) names.push_back(name);
    return names;
  }

  Temp_dir temp_;
  Run_parameters parameters_;
  Run_summary summary_;
  bool approximation_needed_ = true;
};

TEST_F(SmallRun, SingleKIsTakenAsItIs) {
  const std::vector<std::pair<std::uint32_t, std::size_t>> cases = {
      {0, 0}, {1, 1}, {3, 2}, {4, 1}, {5, 0}, {4294967295U, 0}};
  for (const auto& [k, communities] : cases) {
    parameters_.output_dir = temp_.Path(std::to_string(k));
    parameters_.use_single_k = true;
    parameters_.single_k = k;
    EXPECT_EQ(Run(), run_finished);
    EXPECT_EQ(Written().size(), 3U + 8U) << k;
    EXPECT_TRUE(fs::exists(parameters_.output_dir + "/k=" + std::to_string(k)));
    ASSERT_EQ(summary_.extractions.size(), 1U);
    std::size_t found = 0;
    for (const auto& [size, count] : summary_.extractions[0].statistics.all.size) found += count;
    EXPECT_EQ(found, communities) << k;
  }
}

TEST_F(SmallRun, NetworksWithoutCliques) {
  for (const std::string links : {"", "a b\nb c\n"}) {
    parameters_.input_file = temp_.Write("links", links);
    EXPECT_EQ(Run(), run_finished);
    EXPECT_EQ(Written(), (std::vector<std::string>{"cliques", "graph", "input_params.txt"}));
    fs::remove_all(parameters_.output_dir);
  }
}

TEST_F(SmallRun, RelativeInputIsShownAsAbsolute) {
  const fs::path before = fs::current_path();
  fs::current_path(temp_.Path());
  parameters_.input_file = "links";
  parameters_.output_dir = "out/";
  EXPECT_EQ(Run(), run_finished);
  EXPECT_TRUE(
      temp_.Read("out/graph").starts_with("# The links from " + temp_.Path("links") + "\n"));
  fs::current_path(before);
}

TEST_F(SmallRun, ARefusalWritesNothing) {
  parameters_.use_time_limit = true;
  parameters_.use_intensity = true;
  parameters_.directed = true;
  parameters_.use_lower_threshold = parameters_.use_upper_threshold = true;
  EXPECT_EQ(Run(),
            "The following error(s) occured:\n"
            " The maximal allowed time per node must be positive.\n"
            " The sepcified lower threshold is higher (or equal to) the upper threshold.\n"
            " The search algorithm cannot apply the link weight \n"
            " intensity condition when looking for directed communities.\n"
            " The search algorithm cannot apply the maximal time \n"
            " per node condition when a link weight intensity condition is set as well.\n\n");
  EXPECT_EQ(Contents_of(temp_.Path()).size(), 1U);

  parameters_ = {parameters_.input_file, temp_.Path("full")};
  parameters_.use_single_k = true;
  parameters_.single_k = 2;
  parameters_.use_intensity = true;
  EXPECT_EQ(Run(),
            "The following error(s) occured:\n"
            " The k-clique size must be at least 3 when a link weight\n"
            " intensity condition is set.\n\n");
  parameters_.use_intensity = false;
  fs::create_directory(parameters_.output_dir);
  temp_.Write("full/.hidden", "kept");
  EXPECT_EQ(Run(), "ERROR: the output directory already exists and it is non-empty.\n");
  EXPECT_EQ(Contents_of(temp_.Path()).size(), 2U);
  EXPECT_TRUE(approximation_needed_);  // left alone
}

TEST_F(SmallRun, NumbersThatAreNone) {
  constexpr double infinity = std::numeric_limits<double>::infinity();
  constexpr double none = std::numeric_limits<double>::quiet_NaN();
  using P = Run_parameters;
  const std::tuple<bool P::*, double P::*, double, std::string> cases[] = {
      {&P::use_time_limit, &P::time_limit, none,
       " The maximal allowed time per node must be positive.\n"},
      {&P::use_time_limit, &P::time_limit, -infinity,
       " The maximal allowed time per node must be positive.\n"},
      {&P::use_time_limit, &P::time_limit, infinity,
       " The maximal allowed time per node must be finite.\n"},
      {&P::use_lower_threshold, &P::lower_threshold, none, " A threshold must be a number.\n"},
      {&P::use_upper_threshold, &P::upper_threshold, none, " A threshold must be a number.\n"},
      {&P::use_intensity, &P::intensity_threshold, none, " A threshold must be a number.\n"}};
  for (const auto& [use, value, number, text] : cases) {
    parameters_ = {parameters_.input_file, temp_.Path("none")};
    parameters_.*use = true;
    parameters_.*value = number;
    EXPECT_EQ(Run(), "The following error(s) occured:\n" + text + "\n");
    parameters_.*use = false;
    EXPECT_EQ(Run(), run_finished);  // a value that isn't used may be anything
    fs::remove_all(parameters_.output_dir);
  }
}

TEST_F(SmallRun, FindsNothingOfTheRunBefore) {
  Run_summary summary;
  const auto run = [&](const std::string& input, const std::string& out) {
    return Find_coms({input, temp_.Path(out)}, approximation_needed_, summary);
  };
  for (const std::string out : {"first", "second"}) {
    EXPECT_EQ(run(Sample_links("overlapping"), out), run_finished);
    EXPECT_EQ(summary.extractions.size(), summary.cliques_of_size.size() - 3);
    EXPECT_GT(external_control::PROGRESS.cliques_found, 0U);
  }
  EXPECT_NE(run(temp_.Path("missing"), "third"), run_finished);
  EXPECT_EQ(summary.links + summary.exact_cliques + summary.extractions.size(), 0U);
  EXPECT_EQ(external_control::PROGRESS.cliques_found, 0U);
}

TEST_F(SmallRun, AFailureLeavesWhatWasWrittenAndTheMark) {
  const std::string wrong_line = "ERROR: Wrong line found in ' the file I was reading' :\n";
  const std::string missing = temp_.Path("missing");
  const std::vector<std::tuple<std::string, bool, std::string>> cases = {
      {missing, false, "ERROR : File not found: '" + missing + "' "},
      {temp_.Path("links"), true, wrong_line + "a b"},
      {temp_.Write("bad", "a b\n c \t\nword\t\n"), false, wrong_line + "word"}};
  for (const auto& [input, use_lower_threshold, message] : cases) {
    parameters_.input_file = input;
    parameters_.use_lower_threshold = use_lower_threshold;
    EXPECT_EQ(Run(), message);
    EXPECT_EQ(Written(), (std::vector<std::string>{".unfinished", "input_params.txt"}));
    EXPECT_EQ(Read_state_report(), " Reading input ...\n");
    EXPECT_EQ(Read_error_message(), "");
    fs::remove_all(parameters_.output_dir);
  }
}

TEST_F(SmallRun, OutputOnOrBelowAFile) {
  parameters_.output_dir = "";
  EXPECT_EQ(Run(), "ERROR: the output directory has no name.\n");
  parameters_.output_dir = temp_.Path("out");
  temp_.Write("out", "moved aside");
  EXPECT_EQ(Run(), run_finished);
  EXPECT_EQ(temp_.Read("out1"), "moved aside");

  parameters_.output_dir = temp_.Path("links/out");
  EXPECT_EQ(Run(), "ERROR: Make_dir() called with " + parameters_.output_dir +
                       " and \nA component of the path is not a directory.");
  EXPECT_TRUE(temp_.Read("links").starts_with("a b\n"));
}

TEST_F(SmallRun, RefusesItsInputUnderAnyName) {
  fs::create_hard_link(temp_.Path("links"), temp_.Path("hard"));
  fs::create_symlink("links", temp_.Path("soft"));
  const auto before = Contents_of(temp_.Path());
  for (const char* name : {"links", "hard", "soft", "missing/../links"}) {
    parameters_.output_dir = temp_.Path(name);
    EXPECT_EQ(Run(), "ERROR: the results can't be written to '" + parameters_.output_dir +
                         "':\n it is the input file. Choose another output directory.\n");
    EXPECT_EQ(Contents_of(temp_.Path()), before);
  }
}

TEST_F(SmallRun, StopBeforeTheFirstPoll) {
  Stop_process();
  EXPECT_EQ(Run(), "Process stopped by user.\n");
  EXPECT_EQ(Read_state_report(), " Process stopped by user.\n");
  EXPECT_EQ(Written(), (std::vector<std::string>{".unfinished", "graph", "input_params.txt"}));
  Reset_stop_process();
  parameters_.output_dir = temp_.Path("again");
  EXPECT_EQ(Run(), run_finished);
}

}  // namespace
}  // namespace gns
