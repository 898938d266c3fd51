#include <gtest/gtest.h>

#include <algorithm>
#include <atomic>
#include <filesystem>
#include <thread>

#include "Directory_contents.h"
#include "Sample_runs.h"
#include "control/Clique_find_ext_cont.h"
#include "engine/Load_coms.h"

namespace gns {
namespace {

TEST(ResultTables, ARunAndAReloadGiveTheSame) {
  for (const Sample_run& sample : Sample_runs()) {
    const Temp_dir temp;
    Com_result_tables from_run;
    sample.Run(temp.Path("with"), &from_run);
    sample.Run(temp.Path("without"), nullptr);
    EXPECT_EQ(Contents_of(temp.Path("with")), Contents_of(temp.Path("without"))) << sample.name;

    Com_result_tables reloaded;
    std::string errors;
    EXPECT_EQ(Load_coms(temp.Path("with"), sample.load_mode, reloaded, errors), run_finished);
    EXPECT_EQ(errors, "") << sample.name;
    EXPECT_TRUE(from_run == reloaded) << sample.name << sample.load_mode;
    EXPECT_FALSE(from_run.communities.empty());
    EXPECT_EQ(from_run.k_cliques.empty(), !sample.parameters.use_intensity);
    EXPECT_EQ(from_run.com_cliques.empty(), sample.parameters.use_intensity);
    EXPECT_EQ(from_run.size_dist_merged.empty(), !sample.short_of_time);
  }
}

TEST(ResultTables, SignsAndFlavours) {
  const Temp_dir temp;
  Com_result_tables t;
  const Sample_run short_of_time = {"time_limit", 0, {}, true};
  short_of_time.Run(temp.Path("out"), &t);
  EXPECT_EQ(t.graph_links.size(), 25U);
  EXPECT_EQ(t.cliques.at(0), (Name_list{"E", "a", "z"}));
  EXPECT_EQ(t.cliques.at(-7), (Name_list{"a", "b", "c", "d"}));
  EXPECT_EQ(t.communities.at(3), (Names_by_index{{0, {"E", "a", "z"}},
                                                 {1, {"A", "B", "C", "D", "E"}},
                                                 {-2, {"a", "b", "c", "d", "e", "f"}}}));
  EXPECT_EQ(t.com_links.at(3).at(0), (Name_pairs{{"E", "a"}, {"E", "z"}, {"a", "z"}}));
  EXPECT_EQ(t.com_cliques.at(3),
            (Indices_by_index{{0, {0}}, {1, {2}}, {-2, {1, -3, -4, -5, -6, -7}}}));
  EXPECT_EQ(t.com_graphs.at(3), (Overlap_table{{{0, 1}, 1}, {{0, -2}, 1}}));
  EXPECT_EQ(t.size_dist_exact.at(3), (Distribution_table{{3, 1}, {5, 1}}));
  EXPECT_EQ(t.size_dist_appr.at(3), (Distribution_table{{6, 1}}));
  EXPECT_EQ(t.size_dist_merged.at(3), (Distribution_table{{3, 1}, {5, 1}, {6, 1}}));
  EXPECT_EQ(t.overlap_dist_merged.at(3), (Distribution_table{{1, 2}}));
  EXPECT_EQ(t.degree_dist_merged.at(3), (Distribution_table{{1, 2}, {2, 1}}));
  EXPECT_EQ(t.membership_dist_appr.at(3), (Distribution_table{{0, 6}, {1, 6}}));
  EXPECT_FALSE(t.size_dist_appr.contains(5));
  EXPECT_EQ(t.size_dist_exact.at(5), (Distribution_table{{5, 1}}));
}

TEST(ResultTables, OfAnIntensityRun) {
  const Temp_dir temp;
  Com_result_tables t;
  Sample_runs().back().Run(temp.Path("out"), &t);
  // The threshold splits nothing off a triangle whose links are strong, and a link of two
  // k-cliques stands twice.
  std::size_t links = 0;
  for (const auto& [com, pairs] : t.com_links.at(3)) links += pairs.size();
  EXPECT_EQ(links, 3 * t.k_cliques.at(3).size());
}

/// What a table holds already stays, but for the entries that a run or reload replaces.
TEST(ResultTables, TablesInUse) {
  const Temp_dir temp;
  const Sample_run sample = {"time_limit", 0};
  Com_result_tables fresh;
  sample.Run(temp.Path("fresh"), &fresh);
  for (const bool reload : {false, true}) {
    Com_result_tables used;
    used.graph_links = {{"old", "link"}};
    used.communities[99] = {{5, {"kept"}}};
    used.communities[3] = {{77, {"replaced"}}};
    std::string errors = "before\n";
    if (reload)
      Load_coms(temp.Path("fresh"), 7, used, errors);
    else
      sample.Run(temp.Path("again"), &used);
    EXPECT_EQ(errors, "before\n");
    EXPECT_EQ(used.graph_links.size(), fresh.graph_links.size() + 1);
    const auto& kept = *(reload ? std::next(used.graph_links.begin(), fresh.graph_links.size())
                                : used.graph_links.begin());
    EXPECT_EQ(kept.first, "old");
    EXPECT_EQ(used.communities.at(99).at(5), Name_list{"kept"});
    EXPECT_EQ(used.communities.at(3), fresh.communities.at(3));
  }
}

TEST(ResultTables, OneByOne) {
  const Temp_dir temp;
  Com_result_tables run;
  Com_result_tables loaded;
  std::string errors;
  const auto find = [&](auto&... tables) {
    bool approximation_needed = true;
    EXPECT_EQ(Find_coms(Sample_links("time_limit"), temp.Path("out"), false, 0, false, 0, false,
                        false, 0, false, 0, false, 0, approximation_needed, tables...),
              run_finished);
    EXPECT_FALSE(approximation_needed);
  };
  const auto load = [&](auto&... tables) {
    EXPECT_EQ(Load_coms(temp.Path("out"), 0, tables..., errors), run_finished);
  };
  std::apply(find, All_tables(run));
  std::apply(load, All_tables(loaded));
  EXPECT_EQ(errors, "");
  EXPECT_FALSE(run.graph_links.empty());
  EXPECT_TRUE(run == loaded);
}

/// A line of the links file that begins with the name #x reads as a comment.
TEST(ResultTables, ALinkBehindAHashIsNotReadBack) {
  const Temp_dir temp;
  const Sample_run sample = {"overlapping", 0};
  Com_result_tables run;
  Com_result_tables loaded;
  std::string errors;
  sample.Run(temp.Path("out"), &run);
  Load_coms(temp.Path("out"), 0, loaded, errors);
  EXPECT_EQ(errors, "");
  const auto behind_hash = [](const auto& links) {
    return std::ranges::count_if(links,
                                 [](const auto& link) { return link.first.starts_with('#'); });
  };
  std::ptrdiff_t lost = 0;
  for (const auto& [com, links] : run.com_links.at(3)) {
    lost += behind_hash(links);
    EXPECT_EQ(loaded.com_links.at(3).at(com).size() + static_cast<std::size_t>(behind_hash(links)),
              links.size());
  }
  EXPECT_GT(lost, 0);
  run.com_links = loaded.com_links;
  EXPECT_TRUE(run == loaded);
}

/// A k without communities: its tables are there and empty. Its links file, which holds no block,
/// reads as one block without links.
TEST(ResultTables, AKWithoutCommunities) {
  const Temp_dir temp;
  Run_parameters p = {Sample_links("overlapping"), temp.Path("out")};
  p.use_single_k = true;
  p.single_k = 50;
  bool approximation_needed = false;
  Run_summary summary;
  Com_result_tables run;
  EXPECT_EQ(Find_coms(p, approximation_needed, summary, &run), run_finished);
  EXPECT_TRUE(run.communities.at(50).empty());
  EXPECT_TRUE(run.com_links.at(50).empty());
  EXPECT_EQ(run.membership_dist_exact.at(50), (Distribution_table{{0, summary.nodes}}));

  Com_result_tables loaded;
  std::string errors;
  Load_coms(p.output_dir, 0, loaded, errors);
  EXPECT_EQ(errors, "");
  EXPECT_EQ(loaded.com_links.at(50), (Links_by_index{{0, {}}}));
  run.com_links = loaded.com_links;
  EXPECT_TRUE(run == loaded);
}

TEST(ResultTables, AStoppedRunKeepsWhatItHadAndReloadsWithAWarning) {
  const Temp_dir temp;
  const Run_parameters p = {Sample_links("overlapping"), temp.Path("out")};
  Com_result_tables tables;
  bool approximation_needed = false;
  Run_summary summary;
  Stop_process();
  EXPECT_EQ(Find_coms(p, approximation_needed, summary, &tables), "Process stopped by user.\n");
  Reset_stop_process();
  EXPECT_FALSE(tables.graph_links.empty());
  EXPECT_TRUE(tables.cliques.empty());

  std::string errors;
  Com_result_tables loaded;
  EXPECT_EQ(Load_coms(p.output_dir + "/", 0, loaded, errors), run_finished);
  EXPECT_EQ(loaded.graph_links, tables.graph_links);
  EXPECT_EQ(errors, "The results directory '" + p.output_dir +
                        "/' isn't whole: its run is still going on, or was stopped, or failed.\n"
                        "When reading " +
                        p.output_dir + "//cliques:\nERROR : File not found: '" + p.output_dir +
                        "//cliques' \n");
}

TEST(ThreadsResultTables, ASecondCallIsRefused) {
  const Temp_dir temp;
  const Run_parameters p = {Sample_links("overlapping"), temp.Path("out")};
  const std::string refusal =
      "ERROR: another run or reload is going on in this process, and only one can at a time.\n";
  std::atomic<int> refused = 0;
  std::string errors;
  Com_result_tables tables;
  EXPECT_EQ(Message_of([&] {
              std::thread other([&] {
                bool needed = false;
                Run_summary summary;
                refused += Find_coms(p, needed, summary) == refusal;
                refused += Load_coms(temp.Path(), 0, tables, errors) == refusal;
              });
              other.join();
            }),
            run_finished);
  EXPECT_EQ(refused, 2);
  EXPECT_FALSE(std::filesystem::exists(p.output_dir));
  for (const std::string& missing : {temp.Path("none"), std::string()})
    EXPECT_EQ(Load_coms(missing, 0, tables, errors),
              "ERROR: List_dir() called on " + missing +
                  " and\nA component of the path file_name does not exist.");
}

}  // namespace
}  // namespace gns
