#pragma once

#include <cstdint>
#include <vector>

#include "layout/Forest_packing.h"
#include "queries/Forest.h"
#include "vorlane/results.h"

namespace vorlane::layout {

/// Places for drawing a network and its communities at every k. The same results have the same
/// layout, to the last bit, on every machine.
struct Layout {
  /// By node, size() + 1 places; neighbours stand about 1 apart.
  std::vector<Point> nodes;
  /// By place in the forest: a circle inside that of the parent, beside its siblings. These have a
  /// plane of their own.
  std::vector<Circle> communities;
  double radius = 0;  ///< of the circle around all communities
};

/// Starts from the packed communities, with the nodes of none beside their neighbours, and lets
/// linked nodes pull each other and all push each other (T. M. J. Fruchterman, E. M. Reingold,
/// Software: Practice and Experience 21, 1991), in fewer steps the more nodes there are. Tells the
/// control at hand its progress and polls for a stop; some 12 seconds for 300,000 nodes with a
/// million links.
Layout Layout_of(const Network& network, const queries::Forest& forest);

}  // namespace vorlane::layout
