#include "engine/Clique_partners.h"

#include <algorithm>
#include <utility>

namespace gns {

Clique_partners::Partner Clique_partners::Of(Clique_index clique, Node_span members) {
  before_.clear();
  for (const Node_index node : members) before_.push_back(std::exchange(last_[node], clique));
  sorted_ = before_;
  std::sort(sorted_.begin(), sorted_.end());
  Partner best;
  Partner next;
  for (const Clique_index other : sorted_) {
    if (other == none) break;  // the greatest number
    if (next.clique != other) next = {other, 0};
    ++next.shared;
    if (next.shared >= best.shared) best = next;  // of equals the nearest
  }
  return best;
}

}  // namespace gns
