#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

#include "layout/Circle_packing.h"

namespace vorlane::layout {

/// Points in squares inside squares, by which the pull of many far points is reckoned as that of
/// one (J. Barnes, P. Hut, Nature 324, 1986).
class Quad_tree {
 public:
  /// Copies the points. n log n.
  explicit Quad_tree(std::span<const Point> points);

  /// The sum of the vectors from all other points to this place, each over the square of its
  /// length. Points that are as close as that count as no closer than `least_squared`.
  [[nodiscard]] Point Push_at(const Point& place, double least_squared) const;

  /// The points in the order of their squares: who is next to whom there is close in the plane.
  [[nodiscard]] std::span<const std::uint32_t> Order() const { return order_; }

 private:
  /// A square that holds points. They lie in the order of a walk, those inside it right behind it.
  struct Square {
    Point middle;             ///< of its points
    double far_squared = 0;   ///< from here on it counts as one point
    std::uint32_t first = 0;  ///< its points, as positions in points_
    std::uint32_t end = 0;
    std::uint32_t behind = 0;  ///< the square behind those inside it
    bool is_leaf = false;
  };

  void Sort(std::span<const Point> points);
  void Add_square(std::uint32_t first, std::uint32_t end, unsigned depth, double width);

  std::vector<std::uint64_t> keys_;  ///< ascending: the path to a point from square to square
  std::vector<std::uint32_t> order_;
  std::vector<Point> points_;  ///< in that order
  std::vector<Square> squares_;
};

}  // namespace vorlane::layout
