#pragma once

#include <vector>

#include "layout/Circle_packing.h"
#include "queries/Forest.h"

namespace vorlane::layout {

/// A circle for each community, inside that of its parent, and a place for each node that is in
/// one.
struct Packed_forest {
  std::vector<Circle> communities;  ///< by place in the forest
  std::vector<Point> nodes;         ///< by node; at the origin for those of no community
  double radius = 0;                ///< of the circle around all
};

/// Each community holds the circles of those inside it and, as circles of radius 1, the nodes that
/// have their home there; it is at least as large as all its nodes would need. One with the same
/// nodes as the one around it has the same circle. Communities that lie in no other, and those in
/// one another, stand side by side. Polls for a stop.
Packed_forest Pack_forest(const queries::Forest& forest, Node node_count);

}  // namespace vorlane::layout
