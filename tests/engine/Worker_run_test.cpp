#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <map>
#include <sstream>
#include <string>
#include <thread>
#include <vector>

#include "Directory_contents.h"
#include "Random_graphs.h"
#include "Temp_dir.h"
#include "Thrown_message.h"
#include "control/Run_control.h"
#include "engine/Level_finder.h"
#include "engine/Run_stages.h"
#include "files/Unfinished_mark.h"

namespace gns {
namespace {

namespace fs = std::filesystem;

/// A network as a link file, with weights from 1 to 9: sparse, dense, of cliques, or with most of
/// the work at one node.
std::string Links(std::uint32_t seed) {
  literal::Random random(seed);
  const literal::Graph graph = seed % 4 == 3   ? literal::With_hot_node(random, 40, 25)
                               : seed % 3 == 0 ? literal::Uniform(random, 30, 60)
                               : seed % 3 == 1 ? literal::Clique_rich(random, 90)
                                               : literal::Uniform(random, 60, 20);
  std::ostringstream lines;
  for (const auto& [node, neighbours] : graph)
    for (const Node_index other : neighbours)
      if (other < node && random.Chance(70))
        lines << "n" << node << " n" << other << " " << random.Between(1, 9) << "\n";
  return lines.str();
}

/// Of each kind; those with a time limit never reach it.
Run_parameters Kind(std::uint32_t seed) {
  Run_parameters p;
  p.directed = seed % 5 == 1;
  p.use_intensity = seed % 5 == 2;
  p.intensity_threshold = 4;
  p.use_lower_threshold = seed % 5 == 3;
  p.lower_threshold = 2;
  p.use_single_k = seed % 7 == 4;
  p.single_k = 4;
  p.use_time_limit = seed % 5 == 4;
  p.time_limit = 1000;
  return p;
}

/// A run with so many workers and a control of its own.
Run_summary Run_with(Run_parameters parameters, const std::string& output_dir, unsigned workers,
                     const Run_wishes& wishes = {}) {
  external_control::Run_control control;
  const external_control::Control_in_use in_use(control);
  control.workers = workers;
  parameters.output_dir = output_dir;
  bool approximation_needed = false;
  Run_summary summary;
  Run_stages(parameters, wishes, approximation_needed, summary);
  return summary;
}

TEST(ThreadsWorkerRun, LeavesTheSameDirectory) {
  ::setenv("VORLANE_NO_SYNC", "1", 1);
  for (std::uint32_t seed = 0; seed < 20; ++seed) {
    const Temp_dir temp;
    Run_parameters parameters = Kind(seed);
    parameters.input_file = temp.Write("links", Links(seed));
    const Run_summary one = Run_with(parameters, temp.Path("1"), 1);
    const std::map<std::string, std::string> expected = Contents_of(temp.Path("1"));
    ASSERT_GT(expected.size(), 2U);
    for (const unsigned workers : {2U, 3U, 16U}) {
      const std::string out = temp.Path(std::to_string(workers));
      const Run_summary many = Run_with(parameters, out, workers);
      EXPECT_EQ(Contents_of(out), expected) << seed << " " << workers;
      EXPECT_EQ(many.cliques_of_size, one.cliques_of_size);
      ASSERT_EQ(many.extractions.size(), one.extractions.size());
      for (std::size_t i = 0; i < one.extractions.size(); ++i) {
        EXPECT_EQ(many.extractions[i].k, one.extractions[i].k);
        EXPECT_EQ(many.extractions[i].statistics.all.size, one.extractions[i].statistics.all.size);
      }
    }
  }
}

/// Levels that come in order to the thread that began, though others have found them.
class Ordered_keeper : public Run_keeper {
 public:
  void Keep_links(const Link_map& /*links*/) override {}
  void Keep_cliques(const Clique_vector& /*cliques*/, std::uint32_t /*exact_count*/,
                    const Node_names& /*names*/) override {}
  void Keep_level(const Level& level, const Index_links& /*links*/) override {
    EXPECT_EQ(std::this_thread::get_id(), caller_);
    sizes.emplace_back(level.k, level.communities->size());
  }
  std::vector<std::pair<std::uint32_t, std::size_t>> sizes;

 private:
  std::thread::id caller_ = std::this_thread::get_id();
};

TEST(ThreadsWorkerRun, KeepersAndTablesGetTheSame) {
  const Temp_dir temp;
  Run_parameters parameters;
  parameters.input_file = temp.Write("links", Links(6));
  std::vector<Ordered_keeper> keepers(2);
  std::vector<Com_result_tables> tables(2);
  for (const unsigned workers : {1U, 4U}) {
    Run_wishes wishes;
    wishes.keeper = &keepers[workers / 4];
    Run_with(parameters, temp.Path("kept" + std::to_string(workers)), workers, wishes);
    wishes = {};
    wishes.tables = Pointers_to(tables[workers / 4]);
    Run_with(parameters, temp.Path("tables" + std::to_string(workers)), workers, wishes);
  }
  EXPECT_GT(keepers[0].sizes.size(), 2U);
  EXPECT_EQ(keepers[0].sizes, keepers[1].sizes);
  EXPECT_EQ(tables[0], tables[1]);
}

/// Something fails at one level, or somebody stops the run or takes its directory away there: the
/// others end, whoever met it and whatever they wait for.
TEST(ThreadsWorkerRun, WhatEndsOneLevelEndsAll) {
  literal::Random random(1);
  Clique_vector cliques;
  for (std::uint32_t size = 3; size < 40; ++size) {
    const literal::Set nodes = random.Nodes(100, size);
    cliques.push_back(std::vector<Node_index>(nodes.begin(), nodes.end()));
  }
  const Index_links no_links({}, {}, 100);
  Levels_input input(cliques, no_links);
  input.exact_clique_count = static_cast<std::uint32_t>(cliques.size());
  input.node_count = 100;
  input.max_clique_size = 39;
  for (const std::uint32_t bad_k : {39U, 20U, 3U}) {
    external_control::Run_control control;
    const external_control::Control_in_use in_use(control);
    std::uint32_t next = 39;
    const auto find = [&](std::uint32_t k, Levels& levels) {
      Level level;
      level.k = k;
      if (k == bad_k) throw Xerror_msg("bad level");
      levels.Find_communities(level);
      return level;
    };
    const auto use = [&](const Level& level) { EXPECT_EQ(level.k, next--); };
    EXPECT_EQ(Thrown_message([&] {
                Level_finder(input, {39, 3}, 4).Find({39, 3}, {find, use});
              }),
              "bad level");
    EXPECT_GE(next, bad_k);
    control.stop = true;
    EXPECT_EQ(Thrown_message<std::exception>([&] {
                Level_finder(input, {39, 3}, 4)
                    .Find({39, 3}, {[&](std::uint32_t k, Levels& levels) {
                                      Level level;
                                      level.k = k;
                                      if (k == bad_k) external_control::Check_for_stop_signal();
                                      levels.Find_communities(level);
                                      return level;
                                    },
                                    [](const Level&) {}});
              }),
              "Process stopped by user.\n");
  }
}

TEST(ThreadsWorkerRun, AVanishedDirectoryEndsTheRun) {
  const Temp_dir temp;
  Run_parameters parameters;
  parameters.input_file = temp.Write("links", Links(0));
  Run_wishes wishes;
  class Thief : public Run_listener {
   public:
    explicit Thief(std::string path) : path_(std::move(path)) {}
    void Input_read(const Link_file_check& /*check*/, const Link_map* /*links*/) override {}
    void Bound_known(const Results_bound& /*bound*/) override {
      fs::rename(path_, path_ + "_moved");
    }

   private:
    std::string path_;
  } thief(temp.Path("out"));
  wishes.listener = &thief;
  EXPECT_EQ(Thrown_message([&] { Run_with(parameters, temp.Path("out"), 3, wishes); }),
            "ERROR: the output directory '" + temp.Path("out") +
                "' was moved or deleted during the run.\n");
  EXPECT_TRUE(Is_marked_unfinished(temp.Path("out_moved")));
}

}  // namespace
}  // namespace gns
