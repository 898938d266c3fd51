#include "engine/Find_level.h"

#include <optional>

#include "control/Run_control.h"
#include "files/Level_writer.h"

namespace gns {

namespace {

using external_control::Check_for_stop_signal;
using external_control::Report_state;

void Write_communities(const Level& level, const Levels_input& input, const Level_writer& files,
                       const Node_names& names) {
  const Communities& found = *level.communities;
  files.Write_communities(found.coms, found.exact_com_count, names);
  if (level.k_cliques) {
    files.Write_com_links(level.K_clique_links(), found.exact_com_count, names);
    return;
  }
  files.Write_com_cliques(found.com_cliques, found.exact_com_count, input.exact_clique_count);
  files.Write_com_links(found.com_links, found.exact_com_count, input.index_links, names);
}

}  // namespace

Level Find_level(std::uint32_t k, Levels& levels, const Level_output* output) {
  Level level;
  level.k = k;
  std::optional<Level_writer> files;  // made late: a stop until then leaves no directory
  const auto open_files = [&] {
    if (!files) files.emplace(output->results, k);
  };
  if (levels.Input().intensity_threshold) {
    levels.Find_k_cliques(level);
    if (output != nullptr) {
      Report_state("__________________________\n Writing k-clques to disk.\n");
      open_files();
      files->Write_k_cliques(*level.k_cliques, output->names);
    }
  }
  levels.Find_communities(level);
  Check_for_stop_signal();
  if (output != nullptr) {
    Report_state(" Writing commmunities to disk...\n");
    open_files();
    Write_communities(level, levels.Input(), *files, output->names);
    Report_state(" done.\n");
    Check_for_stop_signal();
  }

  Levels::Link_communities(level);
  if (files) files->Write_com_graph(level.com_graph, level.communities->exact_com_count);
  Check_for_stop_signal();
  Report_state(" Calculating statistics...\n");
  levels.Count(level);
  Report_state(" done.\n");
  if (files) files->Write_statistics(level.statistics);
  return level;
}

}  // namespace gns
