#pragma once

#include <vector>

#include "graph/Row_index.h"
#include "layout/Circle_packing.h"

namespace vorlane::layout {

/// Moves the connected components of a drawn network, each as a whole, so that they lie side by
/// side without gaps, the widest in the middle, and none overlaps another.
void Pack_components(const gns::Row_index& neighbours, std::vector<Point>& places);

}  // namespace vorlane::layout
