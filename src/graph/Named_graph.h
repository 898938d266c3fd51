#pragma once

#include "graph/Index_links.h"
#include "graph/Node_names.h"
#include "graph/Vertex_map.h"

namespace gns {

/// A network as searches and writers need it: one body for links of either kind.
struct Named_graph {
  bool directed = false;
  Index_links links;
  Node_names names;
  Vertex_map vertices;               ///< empty if `directed`
  Dir_vertex_map directed_vertices;  ///< empty unless `directed`

  /// For each node all nodes that are linked with it.
  [[nodiscard]] const Adjacency& Neighs() const {
    return directed ? directed_vertices.Rows() : vertices.Rows();
  }
  [[nodiscard]] Node_index Node_count() const {
    return directed ? directed_vertices.size() : vertices.size();
  }
};

}  // namespace gns
