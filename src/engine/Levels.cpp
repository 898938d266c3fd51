#include "engine/Levels.h"

#include <sstream>

#include "control/Run_control.h"
#include "intensity/K_clique_generation.h"
#include "percolation/Coms_funcs.h"

namespace gns {

using external_control::Report_state;

Levels::Levels(const Levels_input& input) : common_(std::make_shared<Common>(input)) {
  if (input.intensity_threshold)
    common_->weighted_cliques.emplace(input.cliques, input.index_links);
  else
    common_->percolation.emplace(input.cliques, input.exact_clique_count, false);
  if (!common_->percolation) return;
  common_->percolation->Walk().Expect_last(input.last_k);
  if (!input.links_are_kept) common_->percolation->Give_up_links();
}

void Levels::Share(std::uint32_t largest_k) {
  common_->turns.emplace();
  common_->largest_k = largest_k;
  if (!common_->percolation) return;
  common_->percolation->Expect_fellows();
  common_->percolation->Walk().Prepare();
}

Levels Levels::Fellow() const {
  Levels fellow(common_);
  if (!common_->percolation) return fellow;
  fellow.fellow_walk_.emplace(common_->percolation->Walk().Fellow());
  fellow.fellow_walk_->Make_lists();
  return fellow;
}

void Levels::Give_up_lists() {
  if (common_->percolation) Walk().Give_up_lists();
}

std::uint64_t Levels::Bytes_of_fellow() const {
  return common_->percolation ? common_->percolation->Walk().Bytes_of_fellow() : 0;
}

void Levels::Find_k_cliques(Level& level) const {
  level.k_cliques.emplace(level.k);
  Generate_k_cls_from_cls_ec(*common_->weighted_cliques, *level.k_cliques, level.k,
                             *Input().intensity_threshold);
}

void Levels::Find_communities(Level& level) {
  if (Input().intensity_threshold)
    Join_by_intensity(level);
  else
    Join_by_overlap(level);
}

/// What is claimed can be told for each k by itself; the contents of communities come from those
/// of the k above.
void Levels::Join_by_overlap(Level& level) {
  std::ostringstream report;
  Coms_report_sub::Report_com_export(level.k, Input().max_clique_size, report);
  Report_state(report.str());
  const Claimed_cliques& claimed = Walk().At(level.k);
  if (level.k == Input().last_k) Give_up_lists();  // the contents need memory, too
  if (common_->turns) common_->turns->Await(common_->largest_k - level.k);
  level.communities = common_->percolation->Contents(level.k, claimed);
  if (common_->turns) common_->turns->Pass();
  Report_state(" done.\n");
}

void Levels::Join_by_intensity(Level& level) const {
  auto communities = std::make_shared<Communities>();
  Intensity_coms_from_k_cliques_ec(*level.k_cliques, communities->coms, level.com_k_cliques,
                                   common_->weighted_cliques->Logs(), *Input().intensity_threshold);
  communities->exact_com_count = static_cast<std::uint32_t>(communities->size());
  level.communities = std::move(communities);
}

void Levels::Link_communities(Level& level) {
  Prepare_community_graph(level.com_graph, level.communities->coms);
}

void Levels::Count(Level& level) const {
  level.statistics = Statistics_of(*level.communities, level.com_graph, Input().node_count);
}

}  // namespace gns
