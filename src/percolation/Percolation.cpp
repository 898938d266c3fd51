#include "percolation/Percolation.h"

#include <span>
#include <utility>

#include "control/Run_control.h"

namespace gns {

Percolation::Percolation(const Clique_vector& cliques, std::uint32_t exact_clique_count,
                         bool nested)
    : walk_(cliques, exact_clique_count, nested), contents_(cliques) {}

std::shared_ptr<const Communities> Percolation::At(std::uint32_t k) {
  return Contents(k, walk_.At(k));
}

std::shared_ptr<const Communities> Percolation::Contents(std::uint32_t k,
                                                         const Claimed_cliques& claimed) {
  if (last_k_ <= k) {
    contents_.Forget_communities();
    Leave_communities();
    communities_ = std::make_shared<Communities>();
  }
  // Of those before, the cliques have been noted: only others may still want them.
  if (!has_fellows_ && communities_.use_count() == 1) communities_->com_cliques.clear();
  auto result = std::make_shared<Communities>();
  result->com_cliques.Reserve(claimed.cliques.size());
  Collect(claimed, false, *result);
  result->exact_com_count = static_cast<std::uint32_t>(result->size());
  Collect(claimed, true, *result);
  Leave_communities();
  communities_ = std::move(result);
  contents_.Note_communities(*communities_);
  last_k_ = k;
  return communities_;
}

void Percolation::Leave_communities() {
  if (gives_up_links_) communities_->com_links.clear();
}

void Percolation::Collect(const Claimed_cliques& claimed, bool approximate, Communities& result) {
  for (const Claimed_cliques::Group& group : claimed.groups) {
    if (group.approximate != approximate) continue;
    external_control::Check_inside_long_stage();
    contents_.Append(std::span(claimed.cliques).subspan(group.first, group.last - group.first),
                     *communities_, result);
  }
}

}  // namespace gns
