#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <map>
#include <sstream>
#include <string>
#include <vector>

#include "Directory_contents.h"
#include "Random_graphs.h"
#include "Sample_runs.h"
#include "Temp_dir.h"
#include "parts/Parts.h"

namespace gns::parts {

/// Nothing waits for the disk in these tests.
inline const int no_sync = ::setenv("VORLANE_NO_SYNC", "1", 1);

using Contents = std::map<std::string, std::string>;

/// The directory of a single run.
inline Contents Single_run(const Temp_dir& temp, Run_parameters parameters) {
  parameters.output_dir = temp.Path("single");
  bool approximation_needed = false;
  Run_summary summary;
  EXPECT_EQ(Find_coms(parameters, approximation_needed, summary), run_finished);
  return Contents_of(parameters.output_dir);
}

/// All steps behind the plan, each once, from the last part to the first.
inline Finished_run Run_planned(const std::string& work, std::uint64_t parts) {
  for (std::uint64_t part = parts; part > 0; --part) Search(work, part);
  Gather(work);
  for (std::uint64_t part = parts; part > 0; --part) Find_levels(work, part);
  return Finish(work);
}

/// A link on a line, with a weight, of a network of many cliques.
inline std::string Drawn_links(std::uint32_t seed, bool directed) {
  literal::Random random(seed);
  const literal::Graph graph = literal::Clique_rich(random, random.Between(20, 60));
  constexpr std::uint32_t mutual = 30;
  std::ostringstream text;
  for (const auto& [from, to] : literal::Directed(random, graph, directed ? mutual : 0))
    text << "n" << from << " n" << to << " " << random.Between(1, 40) / 4.0 << "\n";
  return text.str();
}

/// The same of a network of which one node has most of the work.
inline std::string Hot_links(bool directed) {
  literal::Random random(1);
  constexpr std::uint32_t neighbours = 80;
  constexpr std::uint32_t percent = 30;
  constexpr std::uint32_t mutual = 50;
  const literal::Graph graph = literal::With_hot_node(random, neighbours, percent);
  std::ostringstream text;
  for (const auto& [from, to] : literal::Directed(random, graph, directed ? mutual : 0))
    text << "n" << from << " n" << to << " " << random.Between(1, 40) / 4.0 << "\n";
  return text.str();
}

/// A network and the switches of a run of it.
struct Parts_run {
  std::string name;
  std::string links;
  Run_parameters parameters = {};
  bool has_hot_node = false;  ///< in seven parts or more some are slices
};

/// Every kind of run on networks of every kind.
inline std::vector<Parts_run> Parts_runs() {
  std::vector<Parts_run> runs;
  const auto text_of = [](const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    return std::string(std::istreambuf_iterator<char>(file), {});
  };
  for (const Sample_run& sample : Sample_runs())
    if (!sample.short_of_time)
      runs.push_back({sample.name, text_of(Sample_links(sample.name)), sample.parameters});
  constexpr std::uint32_t kinds = 5;
  constexpr std::uint32_t drawn = 3 * kinds;
  for (std::uint32_t seed = 20; seed < 20 + drawn; ++seed) {
    Run_parameters p;
    p.directed = seed % kinds == 1;
    p.use_intensity = seed % kinds == 2;
    p.intensity_threshold = 2;
    p.use_lower_threshold = p.use_upper_threshold = seed % kinds == 3;
    p.lower_threshold = 1;
    p.upper_threshold = 9;
    p.use_single_k = seed % kinds == 4;
    p.single_k = 3;
    runs.push_back({"drawn " + std::to_string(seed), Drawn_links(seed, p.directed), p});
  }
  runs.push_back({"hot", Hot_links(false), {}, true});
  runs.push_back({"hot, directed", Hot_links(true), {}, true});
  runs.back().parameters.directed = true;
  runs.push_back({"hot, intensity", Hot_links(false), {}, true});
  runs.back().parameters.use_intensity = true;
  runs.back().parameters.intensity_threshold = 4;
  runs.push_back({"no links", "# none\n"});
  return runs;
}

}  // namespace gns::parts
