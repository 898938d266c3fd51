#pragma once

#include <span>

namespace vorlane::layout {

struct Point {
  double x = 0;
  double y = 0;
};

struct Circle {
  Point centre;
  double radius = 0;
};

/// Moves circles so that they lie side by side around the origin, the first ones in the middle, and
/// none overlaps another (W. Wang, H. Wang, G. Dai, H. Wang, Visualization of large hierarchical
/// data by circle packing, CHI 2006). Yields the radius of a circle around the origin that holds
/// all, close to the least. The time grows with n^1.5. Polls for a stop.
///
/// Only sums, products, quotients and square roots, which are the same everywhere, are used here
/// and in the rest of this folder.
double Pack(std::span<Circle> circles);

}  // namespace vorlane::layout
