#include <filesystem>

#include "Parts_runs.h"
#include "files/Unfinished_mark.h"
#include "parts/Clique_part.h"

namespace gns::parts {
namespace {

/// The results, what is told of them, and whether nothing else is left, for any number of parts.
TEST(Parts, MakeTheDirectoryOfASingleRun) {
  std::size_t levels = 0;
  for (const Parts_run& run : Parts_runs()) {
    const Temp_dir temp;
    Run_parameters parameters = run.parameters;
    parameters.input_file = temp.Write("links", run.links);
    const Contents single = Single_run(temp, parameters);
    levels += single.size() / 8;
    for (const std::uint64_t parts : {1U, 2U, 7U, 64U}) {
      SCOPED_TRACE(run.name + " in " + std::to_string(parts));
      const std::string number = std::to_string(parts);
      parameters.output_dir = temp.Path("out" + number);
      const std::string work = temp.Path("work" + number);
      Plan(parameters, {}, work, parts);
      EXPECT_TRUE(Is_marked_unfinished(parameters.output_dir));
      if (run.has_hot_node) {
        EXPECT_EQ(Status_of(work).slices.empty(), parts < 7);
      }
      const Finished_run finished = Run_planned(work, parts);
      EXPECT_EQ(Contents_of(parameters.output_dir), single);
      EXPECT_EQ(finished.parameters.output_dir, parameters.output_dir);
      EXPECT_TRUE(Status_of(work).finished);
    }
  }
  EXPECT_GT(levels, 60U);
}

TEST(Parts, TellWhatASingleRunTells) {
  const Temp_dir temp;
  Run_parameters parameters;
  parameters.input_file = temp.Write("links", Drawn_links(20, false));
  parameters.output_dir = temp.Path("single");
  bool approximation_needed = false;
  Run_summary single;
  ASSERT_EQ(Find_coms(parameters, approximation_needed, single), run_finished);
  parameters.output_dir = temp.Path("out");
  Plan(parameters, {}, temp.Path("work"), 3);
  const Run_summary told = Run_planned(temp.Path("work"), 3).summary;
  EXPECT_EQ(told.nodes, single.nodes);
  EXPECT_EQ(told.links, single.links);
  EXPECT_EQ(told.exact_cliques, single.exact_cliques);
  EXPECT_EQ(told.cliques_of_size, single.cliques_of_size);
  ASSERT_EQ(told.extractions.size(), single.extractions.size());
  ASSERT_GT(told.extractions.size(), 2U);
  for (std::size_t i = 0; i < told.extractions.size(); ++i) {
    EXPECT_EQ(told.extractions[i].k, single.extractions[i].k);
    const Distributions& a = told.extractions[i].statistics.all;
    const Distributions& b = single.extractions[i].statistics.all;
    EXPECT_EQ(std::tie(a.membership, a.size, a.overlap, a.degree),
              std::tie(b.membership, b.size, b.overlap, b.degree));
  }
}

/// Those that no level is left for need nobody; the others do have some.
TEST(Parts, OfTheLevelsAreThoseThatHaveSome) {
  const Temp_dir temp;
  Run_parameters parameters;
  parameters.input_file = temp.Write("links", Drawn_links(20, false));
  const Contents single = Single_run(temp, parameters);
  parameters.output_dir = temp.Path("out");
  const std::string work = temp.Path("work");
  constexpr std::uint64_t parts = 40;
  Plan(parameters, {}, work, parts);
  for (std::uint64_t part = 1; part <= parts; ++part) Search(work, part);
  Gather(work);
  const std::vector<std::uint64_t> left = Left_of(Status_of(work), Step::levels);
  ASSERT_FALSE(left.empty());
  EXPECT_LT(left.back(), parts);
  for (const std::uint64_t part : left) EXPECT_GT(Find_levels(work, part), 0U);
  EXPECT_EQ(Find_levels(work, parts), 0U);
  Finish(work);
  EXPECT_EQ(Contents_of(parameters.output_dir), single);
}

/// Whatever is made again has the same bytes.
TEST(Parts, AreTheSameEachTime) {
  const Temp_dir temp;
  Run_parameters parameters;
  parameters.input_file = temp.Write("links", Drawn_links(20, false));
  parameters.output_dir = temp.Path("out");
  const std::string work = temp.Path("work");
  Plan(parameters, {}, work, 3);
  Run_planned(work, 3);
  const Contents before = Contents_of(temp.Path());
  std::filesystem::remove_all(work);
  std::filesystem::remove_all(parameters.output_dir);
  for (int i = 0; i < 2; ++i) Plan(parameters, {}, work, 3);
  for (int i = 0; i < 2; ++i) {
    for (const auto* const made : {"cliques.2.bin", "cliques.bin", "gather.done", "levels.1.done"})
      std::filesystem::remove(work + "/" + made);
    for (std::uint64_t part = 1; part <= 3; ++part) Search(work, part);
    Gather(work);
    for (std::uint64_t part = 1; part <= 3; ++part) Find_levels(work, part);
  }
  Finish(work);
  EXPECT_TRUE(Contents_of(temp.Path()) == before);
}

/// Parts need no file: one block of memory makes the next.
TEST(Parts, AreMadeOfBlocksOfMemory) {
  const Temp_dir temp;
  Run_parameters parameters;
  parameters.input_file = temp.Write("links", Drawn_links(20, true));
  parameters.directed = true;
  parameters.output_dir = temp.Path("out");
  const std::string work = temp.Path("work");
  Plan(parameters, {}, work, 3);
  Run_planned(work, 3);
  const Contents files = Contents_of(work);
  const auto bytes_of = [](const std::string& block) { return std::as_bytes(std::span(block)); };
  const Graph_part graph(bytes_of(files.at("graph.bin")), {"graph", ""});
  std::vector<std::string> blocks(3);
  std::vector<Clique_vector> found(3);
  std::vector<const Clique_vector*> all;
  for (std::uint64_t part = 1; part <= 3; ++part) {
    std::string& block = blocks[part - 1];
    const auto take = [&](std::span<const std::byte> bytes) {
      block.append(reinterpret_cast<const char*>(bytes.data()), bytes.size());
    };
    Write_clique_part(take, graph, part);
    EXPECT_EQ(block, files.at("cliques." + std::to_string(part) + ".bin"));
    found[part - 1] = Cliques_of_part(
        bytes_of(block), {Part_kind::cliques, graph.Fingerprint(), part}, {"block", ""});
    all.push_back(&found[part - 1]);
  }
  std::string gathered;
  Write_all_cliques(
      [&](std::span<const std::byte> bytes) {
        gathered.append(reinterpret_cast<const char*>(bytes.data()), bytes.size());
      },
      graph, all);
  EXPECT_EQ(gathered, files.at("cliques.bin"));
}

/// The folder may be on another file system than the results.
TEST(Parts, MeetOnAnyFileSystem) {
  const std::filesystem::path memory = "/dev/shm";
  if (!std::filesystem::is_directory(memory)) GTEST_SKIP() << "there is no other file system";
  const Temp_dir temp;
  const std::string work = memory / std::filesystem::path(temp.Path()).filename();
  Run_parameters parameters;
  parameters.input_file = temp.Write("links", Drawn_links(20, false));
  const Contents single = Single_run(temp, parameters);
  parameters.output_dir = temp.Path("out");
  Plan(parameters, {}, work, 2);
  Run_planned(work, 2);
  std::filesystem::remove_all(work);
  EXPECT_EQ(Contents_of(parameters.output_dir), single);
}

TEST(Parts, AreToldByTheirStates) {
  const Temp_dir temp;
  Run_parameters parameters;
  parameters.input_file = temp.Write("links", Drawn_links(20, false));
  parameters.output_dir = temp.Path("out");
  const std::string work = temp.Path("work");
  using enum Part_state;
  using States = std::vector<Part_state>;
  Plan(parameters, {}, work, 2);
  Search(work, 2);
  // Of another machine's worker nobody knows whether it lives.
  temp.Write("work/cliques.1.bin.elsewhere.17.1.aside", "");
  EXPECT_EQ(Status_of(work).search, (States{running, done}));
  EXPECT_EQ(Status_of(work).gather, missing);
  Search(work, 1);
  Gather(work);
  std::filesystem::remove(temp.Path("work/cliques.2.bin"));  // not needed any more
  Find_levels(work, 1);
  const Status status = Status_of(work);
  EXPECT_EQ(status.search, (States{done, done}));
  EXPECT_EQ(status.gather, done);
  EXPECT_EQ(status.levels, (States{done, missing}));
  EXPECT_FALSE(status.finished);
  Find_levels(work, 2);
  EXPECT_FALSE(Status_of(work).finished);
  Finish(work);
  EXPECT_TRUE(Status_of(work).finished);
  EXPECT_EQ(Finish(work).parameters.output_dir, parameters.output_dir);  // again
}

}  // namespace
}  // namespace gns::parts
