#pragma once

#include <vector>

#include "layout/Circle_packing.h"

namespace vorlane::layout {

/// Pushes nodes apart that are closer to each other than `least`, in 4 to 25 rounds, the fewer the
/// more nodes there are; most pairs then are that far apart. By node, the first place is unused.
/// Polls for a stop.
void Push_apart(std::vector<Point>& places, double least);

}  // namespace vorlane::layout
