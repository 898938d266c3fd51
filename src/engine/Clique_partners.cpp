#include "engine/Clique_partners.h"

#include <algorithm>
#include <utility>

namespace gns {

Clique_partners::Partner Clique_partners::Of(Clique_index clique, Node_span members) {
  seen_.clear();
  for (const Node_index node : members) {
    const Clique_index before = std::exchange(last_[node], clique);
    if (before != none) seen_.push_back(before);
  }
  std::sort(seen_.begin(), seen_.end());
  Partner best;
  Partner next;
  for (const Clique_index other : seen_) {
    if (next.clique != other) next = {other, 0};
    ++next.shared;
    if (next.shared >= best.shared) best = next;  // of equals the nearest
  }
  return best;
}

}  // namespace gns
