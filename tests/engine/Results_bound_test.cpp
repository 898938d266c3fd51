#include "engine/Results_bound.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <string>

#include "Directory_contents.h"
#include "Random_graphs.h"
#include "Sample_runs.h"
#include "control/Clique_find_ext_cont.h"
#include "control/Work_done.h"

namespace gns {
namespace {

/// Links between names of all lengths, with weights.
std::string Links_of(literal::Random& random, const std::set<Index_pair>& links) {
  const auto name = [](Node_index node) {
    return std::string(node % 7 == 0 ? 40 : node % 5, 'x') + std::to_string(node);
  };
  std::string text;
  for (const auto& [from, to] : links)
    text += name(from) + ' ' + name(to) + ' ' + std::to_string(random.Between(1, 9)) + '\n';
  return text;
}

class Listener : public Run_listener {
 public:
  Results_bound told;

 private:
  void Input_read(const Link_file_check&, const Link_map*) override {}
  void Bound_known(const Results_bound& bound) override { told = bound; }
};

struct Told_and_written {
  Results_bound told;
  std::uint64_t files = 0;
  std::uint64_t bytes = 0;  ///< without pairs of communities
  std::uint64_t pair_bytes = 0;
};

/// Makes a run and looks what it has written below k=...
Told_and_written Whole_run(const Run_parameters& parameters, const Clock& clock = {}) {
  Told_and_written found;
  Listener listener;
  Run_wishes wishes;
  wishes.listener = &listener;
  if (parameters.use_time_limit) wishes.clock = clock;
  bool approximation_needed = false;
  Run_summary summary;
  Run_stages(parameters, wishes, approximation_needed, summary);
  found.told = listener.told;
  EXPECT_EQ(external_control::OUTPUT_BOUND.bytes, found.told.bytes);
  EXPECT_EQ(found.told.directories, summary.extractions.size());
  for (const auto& [path, contents] : Contents_of(parameters.output_dir)) {
    if (!path.starts_with("k=")) continue;
    ++found.files;
    const bool pairs = path.find("/graph_of_") != std::string::npos;
    const std::size_t head = pairs ? contents.find("\n\n") + 2 : contents.size();
    found.bytes += head;
    found.pair_bytes += contents.size() - head;
  }
  return found;
}

TEST(ResultsBound, NoRunWritesMore) {
  const Temp_dir temp;
  ::setenv("VORLANE_NO_SYNC", "1", 1);
  constexpr std::uint32_t graphs = 80;
  for (std::uint32_t seed = 1; seed <= graphs; ++seed) {
    SCOPED_TRACE(seed);
    literal::Random random(seed);
    const std::set<Index_pair> links =
        literal::Directed(random, literal::Random_graph(seed), random.Below(60));
    Run_parameters p;
    p.input_file = temp.Write("links", Links_of(random, links));
    p.directed = seed % 4 == 1;
    p.use_intensity = seed % 4 == 2;
    p.intensity_threshold = random.Below(5);
    p.use_time_limit = seed % 4 == 3;
    p.time_limit = 1.0;
    if (random.Chance(30)) {
      p.use_single_k = true;
      p.single_k = random.Between(p.use_intensity ? 3 : 1, 7);
    }
    p.output_dir = temp.Path("out" + std::to_string(seed));
    const Told_and_written found = Whole_run(
        p, [random, time = 0.0]() mutable { return time += random.Chance(40) ? 2.0 : 0.0; });
    EXPECT_LE(found.files, found.told.files);
    EXPECT_LE(found.bytes, found.told.bytes);
    EXPECT_LE(found.pair_bytes, found.told.pair_bytes);
  }
  ::unsetenv("VORLANE_NO_SYNC");
}

/// A clique, and a ring of triangles that share nodes but no links: nothing is uncertain there.
TEST(ResultsBound, IsCloseWhereCommunitiesAreSingleCliques) {
  const Temp_dir temp;
  constexpr Node_index size = 30;
  std::set<Index_pair> links;
  for (Node_index a = 1; a <= size; ++a) {
    for (Node_index b = a + 1; b <= size; ++b) links.insert({a, b});
    const Node_index corner = 100 + 2 * a;
    const Node_index next = 100 + 2 * (a % size + 1);
    links.insert({{corner, next}, {corner, corner + 1}, {next, corner + 1}});
  }
  literal::Random random(1);
  Run_parameters p;
  p.input_file = temp.Write("links", Links_of(random, links));
  p.output_dir = temp.Path("out");
  const Told_and_written found = Whole_run(p);
  EXPECT_EQ(found.files, found.told.files);
  EXPECT_LE(found.told.bytes, found.bytes * 5 / 4);
  EXPECT_EQ(found.told.On_disk(4096), found.told.bytes + (28 * 8 + 28) * 4096);
}

}  // namespace
}  // namespace gns
