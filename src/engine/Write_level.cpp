#include "engine/Write_level.h"

#include <algorithm>
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

K_summary Summary_of(const Level& level, std::uint32_t node_count) {
  const Communities& found = *level.communities;
  K_summary summary;
  summary.k = level.k;
  summary.communities = found.size();
  for (std::size_t com = 0; com < found.size(); ++com)
    summary.largest = std::max(summary.largest, found.coms[com].size());
  summary.nodes_covered = node_count - level.statistics.all.membership.at(0);
  return summary;
}

}  // namespace

K_summary Find_and_write_level(std::uint32_t k, Levels& levels, const Results_writer& results,
                               const Node_names& names, Run_keeper* keeper) {
  Level level;
  level.k = k;
  std::optional<Level_writer> files;  // made late: a stop until then leaves no directory
  if (levels.Input().intensity_threshold) {
    levels.Find_k_cliques(level);
    Report_state("__________________________\n Writing k-clques to disk.\n");
    files.emplace(results, k);
    files->Write_k_cliques(*level.k_cliques, names);
  }
  levels.Find_communities(level);
  Check_for_stop_signal();
  Report_state(" Writing commmunities to disk...\n");
  if (!files) files.emplace(results, k);
  Write_communities(level, levels.Input(), *files, names);
  Report_state(" done.\n");
  Check_for_stop_signal();

  Levels::Link_communities(level);
  files->Write_com_graph(level.com_graph, level.communities->exact_com_count);
  Check_for_stop_signal();
  Report_state(" Calculating statistics...\n");
  levels.Count(level);
  Report_state(" done.\n");
  files->Write_statistics(level.statistics);
  if (keeper != nullptr) keeper->Keep_level(level, levels.Input().index_links);
  return Summary_of(level, levels.Input().node_count);
}

}  // namespace gns
