#include "graph/Core.h"

#include <vector>

namespace gns {

Adjacency Core_of(const Adjacency& neighs, std::size_t least_degree) {
  const Node_index count = neighs.Node_count();
  std::vector<std::size_t> degrees(count + std::size_t{1}, 0);
  std::vector<Node_index> to_leave_out;
  for (Node_index node = 1; node <= count; ++node) {
    degrees[node] = neighs[node].size();
    if (degrees[node] < least_degree) to_leave_out.push_back(node);
  }
  while (!to_leave_out.empty()) {
    const Node_index node = to_leave_out.back();
    to_leave_out.pop_back();
    for (const Node_index neigh : neighs[node])
      if (degrees[neigh]-- == least_degree) to_leave_out.push_back(neigh);
  }
  return {count, [&](auto enter) {
            for (Node_index node = 1; node <= count; ++node) {
              if (degrees[node] < least_degree) continue;
              for (const Node_index neigh : neighs[node])
                if (degrees[neigh] >= least_degree) enter(node, neigh);
            }
          }};
}

}  // namespace gns
