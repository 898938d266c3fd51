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
  }
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
    Name_pairs links;  // a run appends its links, a reload puts them in front
    if (!reload) links.push_back("old", "link");
    links.Append(fresh.graph_links);
    if (reload) links.push_back("old", "link");
    EXPECT_EQ(used.graph_links, links);
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
  EXPECT_TRUE(run == loaded);
}

/// One table for all that it can stand for: what is told last at a k is what stays there, in the
/// order in which a run writes and a reload reads.
TEST(ResultTables, OneTableForMany) {
  const Temp_dir temp;
  Com_result_tables own;
  const Sample_run sample = Sample_runs().back();  // has k-cliques
  sample.Run(temp.Path("own"), &own);
  Com_result_tables t;
  auto& names = t.communities;
  auto& dist = t.size_dist_exact;
  bool approximation_needed = false;
  EXPECT_EQ(
      Find_coms(Sample_links(sample.name), temp.Path("out"), false, 0, false, 0, false, true,
                sample.parameters.intensity_threshold, false, 0, false, 0, approximation_needed,
                t.graph_links, t.cliques, names, names, t.com_links, t.com_cliques, t.com_graphs,
                dist, dist, dist, dist, dist, dist, dist, dist, dist, dist, dist, dist),
      run_finished);
  EXPECT_EQ(names, own.communities);
  EXPECT_EQ(dist, own.degree_dist_exact);
  EXPECT_EQ(t.com_links, own.com_links);

  std::string errors;
  EXPECT_EQ(Load_coms(temp.Path("own"), sample.load_mode, t.graph_links, t.cliques, names, names,
                      t.com_links, t.com_cliques, t.com_graphs, dist, dist, dist, dist, dist, dist,
                      dist, dist, dist, dist, dist, dist, errors),
            run_finished);
  EXPECT_EQ(names, own.k_cliques);
  EXPECT_EQ(dist, own.membership_dist_exact);
}

/// A link whose line begins with the name #x reads as a comment.
TEST(ResultTables, ALinkBehindAHashIsNotReadBack) {
  const Temp_dir temp;
  Com_result_tables run;
  Com_result_tables loaded;
  std::string errors;
  Sample_run{"overlapping"}.Run(temp.Path("out"), &run);
  Load_coms(temp.Path("out"), 0, loaded, errors);
  for (const auto& [com, links] : run.com_links.at(3)) {
    const auto lost =
        std::ranges::count_if(links, [](const auto& link) { return link.first.starts_with('#'); });
    EXPECT_EQ(loaded.com_links.at(3).at(com).size() + static_cast<std::size_t>(lost), links.size());
  }
  EXPECT_FALSE(run == loaded);
  run.com_links = loaded.com_links;
  EXPECT_TRUE(run == loaded);
}

/// A k without communities: its tables are there and empty. Its links file, which holds no block,
/// reads as one block without links.
TEST(ResultTables, AKWithoutCommunities) {
  const Temp_dir temp;
  Sample_run sample = {"overlapping"};
  sample.parameters.use_single_k = true;
  sample.parameters.single_k = 50;
  Com_result_tables run;
  Com_result_tables loaded;
  std::string errors;
  sample.Run(temp.Path("out"), &run);
  Load_coms(temp.Path("out"), 0, loaded, errors);
  EXPECT_TRUE(run.com_links.at(50).empty());
  run.com_links[50] = {{0, {}}};
  EXPECT_TRUE(run == loaded);
  EXPECT_EQ(run.membership_dist_exact.at(50).size(), 1U);
}

TEST(ResultTables, AStoppedRunKeepsWhatItHad) {
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
  EXPECT_EQ(errors, "When reading " + p.output_dir + "//cliques:\nERROR : File not found: '" +
                        p.output_dir + "//cliques' \n");
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
