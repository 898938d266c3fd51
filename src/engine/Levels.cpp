#include "engine/Levels.h"

#include <sstream>

#include "control/Run_control.h"
#include "intensity/K_clique_generation.h"
#include "percolation/Coms_funcs.h"

namespace gns {

using external_control::Report_state;

Levels::Levels(const Levels_input& input) : input_(input) {
  if (input.intensity_threshold)
    weighted_cliques_.emplace(input.cliques, input.index_links);
  else
    percolation_.emplace(input.cliques, input.exact_clique_count, false);
  if (percolation_ && !input.links_are_kept) percolation_->Give_up_links();
}

void Levels::Find_k_cliques(Level& level) {
  level.k_cliques.emplace(level.k);
  Generate_k_cls_from_cls_ec(*weighted_cliques_, *level.k_cliques, level.k,
                             *input_.intensity_threshold);
}

void Levels::Find_communities(Level& level) {
  if (input_.intensity_threshold)
    Join_by_intensity(level);
  else
    Join_by_overlap(level);
}

void Levels::Join_by_overlap(Level& level) {
  std::ostringstream report;
  Coms_report_sub::Report_com_export(level.k, input_.max_clique_size, report);
  Report_state(report.str());
  level.communities = percolation_->At(level.k);
  Report_state(" done.\n");
}

void Levels::Join_by_intensity(Level& level) const {
  auto communities = std::make_shared<Communities>();
  Intensity_coms_from_k_cliques_ec(*level.k_cliques, communities->coms, level.com_k_cliques,
                                   weighted_cliques_->Logs(), *input_.intensity_threshold);
  communities->exact_com_count = static_cast<std::uint32_t>(communities->size());
  level.communities = std::move(communities);
}

void Levels::Link_communities(Level& level) {
  Prepare_community_graph(level.com_graph, level.communities->coms);
}

void Levels::Count(Level& level) const {
  level.statistics = Statistics_of(*level.communities, level.com_graph, input_.node_count);
}

}  // namespace gns
