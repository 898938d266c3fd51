#pragma once

#include <utility>

#include "graph/Adjacency.h"
#include "graph/Index_links.h"
#include "graph/Node_set.h"
#include "graph/records/Vtx.h"
#include "graph/records/Vtxd.h"

namespace gns {

/// The undirected graph: index -> vertex record, 1..n ascending.
///
/// Held as rows of neighbours; a record is made when it is asked for.
class Vertex_map {
 public:
  Vertex_map() = default;
  /// `neighs` holds each link in both rows, rows ascending.
  explicit Vertex_map(Adjacency neighs) : neighs_(std::move(neighs)) {}

  [[nodiscard]] Node_index size() const { return neighs_.Node_count(); }
  [[nodiscard]] bool empty() const { return size() == 0; }
  [[nodiscard]] Node_span Neighs(Node_index node) const { return neighs_[node]; }
  /// The neighbours of all nodes.
  [[nodiscard]] const Adjacency& Rows() const { return neighs_; }
  /// The record of a node, with its neighbours and no cliques.
  [[nodiscard]] Vtx Record(Node_index node) const;

 private:
  Adjacency neighs_;
};

/// The directed graph: index -> directed vertex record, 1..n ascending.
class Dir_vertex_map {
 public:
  Dir_vertex_map() = default;
  /// Rows ascending; `oneighs` and `ineighs` are each other's reverse, `neighs` is their union.
  Dir_vertex_map(Adjacency oneighs, Adjacency ineighs, Adjacency neighs)
      : oneighs_(std::move(oneighs)), ineighs_(std::move(ineighs)), neighs_(std::move(neighs)) {}

  [[nodiscard]] Node_index size() const { return neighs_.Node_count(); }
  [[nodiscard]] bool empty() const { return size() == 0; }
  [[nodiscard]] Node_span Neighs(Node_index node) const { return neighs_[node]; }
  /// The neighbours of all nodes, whatever the direction.
  [[nodiscard]] const Adjacency& Rows() const { return neighs_; }
  [[nodiscard]] const Adjacency& Ineigh_rows() const { return ineighs_; }
  [[nodiscard]] Node_span Oneighs(Node_index node) const { return oneighs_[node]; }
  [[nodiscard]] Node_span Ineighs(Node_index node) const { return ineighs_[node]; }
  /// The record of a node, with its neighbours and no cliques.
  [[nodiscard]] Vtxd Record(Node_index node) const;

 private:
  Adjacency oneighs_;
  Adjacency ineighs_;
  Adjacency neighs_;
};

}  // namespace gns
