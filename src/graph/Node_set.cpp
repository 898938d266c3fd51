#include "graph/Node_set.h"

#include <algorithm>

namespace gns {

Node_set::Node_set(std::initializer_list<Node_index> members) : members_(members) {
  std::sort(members_.begin(), members_.end());
  members_.erase(std::unique(members_.begin(), members_.end()), members_.end());
}

Node_set Node_set::From_sorted(Node_span members) {
  Node_set set;
  set.members_.assign(members.begin(), members.end());
  return set;
}

bool Node_set::insert(Node_index node) {
  const auto place = std::lower_bound(members_.begin(), members_.end(), node);
  if (place != members_.end() && *place == node) return false;
  members_.insert(place, node);
  return true;
}

bool Node_set::erase(Node_index node) {
  const auto place = std::lower_bound(members_.begin(), members_.end(), node);
  if (place == members_.end() || *place != node) return false;
  members_.erase(place);
  return true;
}

bool Node_set::contains(Node_index node) const {
  return std::binary_search(members_.begin(), members_.end(), node);
}

bool Lies_inside(Node_span inner, Node_span outer) {
  return std::includes(outer.begin(), outer.end(), inner.begin(), inner.end());
}

std::size_t Count_shared(Node_span a, Node_span b) {
  std::size_t shared = 0;
  for (std::size_t i = 0, j = 0; i < a.size() && j < b.size();) {
    if (a[i] == b[j]) ++shared;
    const bool step_a = a[i] <= b[j];
    const bool step_b = b[j] <= a[i];
    i += step_a ? 1U : 0U;
    j += step_b ? 1U : 0U;
  }
  return shared;
}

}  // namespace gns
