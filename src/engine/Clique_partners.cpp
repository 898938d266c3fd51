#include "engine/Clique_partners.h"

#include <utility>

namespace gns {

Clique_partners::Partner Clique_partners::Of(Clique_index clique, Node_span members) {
  before_.clear();
  Partner best;
  for (const Node_index node : members) {
    const Clique_index other = std::exchange(last_[node], clique);
    before_.push_back(other);
    if (other == none) continue;
    const std::uint32_t shared = ++votes_[other];
    if (shared > best.shared || (shared == best.shared && other > best.clique))  // the nearest
      best = {other, shared};
  }
  for (const Clique_index other : before_)
    if (other != none) votes_[other] = 0;
  return best;
}

}  // namespace gns
