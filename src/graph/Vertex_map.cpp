#include "graph/Vertex_map.h"

namespace gns {

Vtx Vertex_map::Record(Node_index node) const {
  return {node, Node_set::From_sorted(Neighs(node))};
}

Vtxd Dir_vertex_map::Record(Node_index node) const {
  return {node, Node_set::From_sorted(Oneighs(node)), Node_set::From_sorted(Ineighs(node))};
}

}  // namespace gns
