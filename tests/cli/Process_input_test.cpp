#include "cli/Process_input.h"

#include <gtest/gtest.h>

#include <tuple>
#include <vector>

#include "Temp_dir.h"

namespace gns {
namespace {

using Words = std::vector<std::string>;

/// What comes out of one command line.
struct Outcome {
  std::string output_dir;
  Link_map links;
  double time_limit = -1;
  bool use_time_limit = true;
  bool directed = false;
  bool use_intensity = true;
  double intensity_threshold = -1;
  bool use_single_k = true;
  unsigned single_k = 99;
  bool weighted = true;
  std::string com_flag = "old";
  std::string run_header = "old";

  explicit Outcome(const Words& words) {
    std::vector<const char*> argv{"prog"};
    for (const std::string& word : words) argv.push_back(word.c_str());
    Process_input(static_cast<int>(argv.size()), argv.data(), output_dir, links, time_limit,
                  use_time_limit, directed, use_intensity, intensity_threshold, use_single_k,
                  single_k, weighted, com_flag, run_header);
  }
};

class ProcessInput : public ::testing::Test {
 protected:
  Outcome Run(Words words) {
    words.insert(words.begin(), {"-i", net_});
    return Outcome(words);
  }

  Temp_dir temp_;
  std::string net_ = temp_.Write("net.dat", "a b 0.1\nb c 0.5\nc a 2\n");
};

TEST_F(ProcessInput, DerivesTheNameOfTheResultsDirectory) {
  const std::vector<std::pair<Words, std::string>> cases{
      {{}, "_files"},
      {{"-w", "0.15"}, "_files_0.150000_w"},
      {{"-w", "0.15", "-d", "3"}, "_files_0.150_w"},
      {{"-w", "1.5", "-d", "0"}, "_files_2_w"},
      {{"-W", "1.35", "-d", "3"}, "_files_w_1.350"},
      {{"-w", "0.15", "-W", "1.35", "-d", "3"}, "_files_0.150_w_1.350"},
      {{"-D"}, "_files-d"},
      {{"-D", "-W", "1", "-d", "1"}, "_files_w_1.0-d"},
      {{"-I", "0.35", "-d", "2"}, "_files-w-th0.35"}};
  for (const auto& [words, ending] : cases) EXPECT_EQ(Run(words).output_dir, net_ + ending);
  EXPECT_EQ(Run({"-I", "0.35", "-d", "2", "-o", "res"}).output_dir, "res-w-th0.35");
  EXPECT_EQ(Run({"-w", "0.35", "-D", "-o", "res", "other"}).output_dir, "res");
}

TEST_F(ProcessInput, HandsOverTheSwitches) {
  const Outcome plain = Run({});
  EXPECT_FALSE(plain.use_time_limit || plain.use_intensity || plain.use_single_k ||
               plain.weighted || plain.directed || plain.links.Has_weights());
  EXPECT_EQ(plain.time_limit + plain.intensity_threshold + plain.single_k, 97);
  EXPECT_EQ(plain.com_flag, "");

  const Outcome timed = Run({"-D", "-t", "2.5", "-k", "4", "-W", "1"});
  EXPECT_TRUE(timed.directed && timed.use_time_limit && timed.use_single_k && timed.weighted);
  EXPECT_EQ(timed.time_limit, 2.5);
  EXPECT_EQ(timed.single_k, 4);
  EXPECT_EQ(timed.com_flag, "directed");
  EXPECT_EQ(timed.run_header, " from " + net_ +
                                  "\n# at no lower link weight threshold,\n"
                                  "# and at an upper link weight threshold of 1.000000.\n");
  ASSERT_EQ(timed.links.size(), 2);  // the third is too heavy
  EXPECT_EQ(timed.links.Weight(1), 0.5);

  const Outcome intensity = Run({"-I", "0.25"});
  EXPECT_TRUE(intensity.use_intensity && intensity.weighted);
  EXPECT_EQ(intensity.intensity_threshold, 0.25);
  EXPECT_EQ(intensity.com_flag, "intensity");
}

TEST_F(ProcessInput, PrintsUsageAndThrowsTheEmptyText) {
  const std::string error = std::string(52, '_') + "\n Vorlane.\n\n Error:\n";
  const std::vector<std::tuple<Words, bool, std::string>> cases{
      {{"-h", "-i"},
       true,
       " When using prog you must specify at least the \n input file using the switch -i. \n"},
      {{"-h", "-q"}, false, error + "unknown parameter in parameter list!"},
      {{"-w", "{prog_name}"},
       false,
       error + "You must specify an input file.\n Unable to interpret the value '{prog_name}' for"
               " switch -w.\n\n Usage : prog -i input_file \n"}};
  for (const auto& [words, on_request, printed] : cases) {
    ::testing::internal::CaptureStdout();
    try {
      const Outcome outcome(words);
      ADD_FAILURE() << printed;
    } catch (const Xusage_printed& usage) {
      EXPECT_STREQ(usage.what(), "");
      EXPECT_EQ(usage.on_request, on_request);
    }
    EXPECT_TRUE(::testing::internal::GetCapturedStdout().starts_with(printed)) << printed;
  }
  EXPECT_THROW(Run({"-i", "no such file"}), Xep_file_not_found);
}

}  // namespace
}  // namespace gns
