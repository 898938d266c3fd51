#include "layout/Quad_tree.h"

#include <algorithm>
#include <utility>

namespace vorlane::layout {

namespace {

constexpr unsigned depth_limit = 16;  ///< steps of a path, two bits each
constexpr std::uint32_t leaf_size = 6;
constexpr double accuracy = 0.9;  ///< width of a square over the distance at which it is one point

/// The lower 16 bits with a zero in front of each.
std::uint64_t Spread(std::uint64_t bits) {
  bits = (bits | bits << 8U) & 0x00ff00ffU;
  bits = (bits | bits << 4U) & 0x0f0f0f0fU;
  bits = (bits | bits << 2U) & 0x33333333U;
  return (bits | bits << 1U) & 0x55555555U;
}

struct Frame {
  Point corner;
  double width = 0;
};

Frame Frame_of(std::span<const Point> points) {
  Point low = points.front();
  Point high = low;
  for (const Point& point : points) {
    low = {std::min(low.x, point.x), std::min(low.y, point.y)};
    high = {std::max(high.x, point.x), std::max(high.y, point.y)};
  }
  return {low, std::max(high.x - low.x, high.y - low.y)};
}

}  // namespace

Quad_tree::Quad_tree(std::span<const Point> points) {
  if (points.empty()) return;
  Sort(points);
  squares_.reserve(points.size());
  Add_square(0, static_cast<std::uint32_t>(points.size()), 0, Frame_of(points).width);
}

void Quad_tree::Sort(std::span<const Point> points) {
  const Frame frame = Frame_of(points);
  constexpr double most = (1U << depth_limit) - 1;
  const double scale = frame.width > 0 ? most / frame.width : 0;
  std::vector<std::pair<std::uint64_t, std::uint32_t>> sorted(points.size());
  for (std::uint32_t i = 0; i < points.size(); ++i) {
    const auto column = static_cast<std::uint64_t>((points[i].x - frame.corner.x) * scale);
    const auto row = static_cast<std::uint64_t>((points[i].y - frame.corner.y) * scale);
    sorted[i] = {Spread(column) | Spread(row) << 1U, i};
  }
  std::ranges::sort(sorted);
  for (const auto& [key, point] : sorted) {
    keys_.push_back(key);
    order_.push_back(point);
    points_.push_back(points[point]);
  }
}

void Quad_tree::Add_square(std::uint32_t first, std::uint32_t end, unsigned depth, double width) {
  const std::size_t place = squares_.size();
  Square square;
  for (std::uint32_t i = first; i < end; ++i) {
    square.middle.x += points_[i].x;
    square.middle.y += points_[i].y;
  }
  square.middle.x /= end - first;
  square.middle.y /= end - first;
  square.far_squared = width * width / (accuracy * accuracy);
  square.first = first;
  square.end = end;
  square.is_leaf = end - first <= leaf_size || depth == depth_limit;
  squares_.push_back(square);
  if (!square.is_leaf) {
    const unsigned shift = 2 * (depth_limit - depth - 1);
    while (first < end) {
      const std::uint64_t quarter_end = ((keys_[first] >> shift) + 1) << shift;
      const auto next = static_cast<std::uint32_t>(
          std::lower_bound(keys_.begin() + first, keys_.begin() + end, quarter_end) -
          keys_.begin());
      Add_square(first, next, depth + 1, width / 2);
      first = next;
    }
  }
  squares_[place].behind = static_cast<std::uint32_t>(squares_.size());
}

Point Quad_tree::Push_at(const Point& place, double least_squared) const {
  Point push;
  const auto add = [&](const Point& from, double count) {
    const double dx = place.x - from.x;
    const double dy = place.y - from.y;
    const double weight = count / std::max(dx * dx + dy * dy, least_squared);
    push.x += weight * dx;
    push.y += weight * dy;
  };
  for (std::uint32_t i = 0; i < squares_.size();) {
    const Square& square = squares_[i];
    const double dx = place.x - square.middle.x;
    const double dy = place.y - square.middle.y;
    if (dx * dx + dy * dy > square.far_squared) {
      add(square.middle, square.end - square.first);
      i = square.behind;
    } else if (square.is_leaf) {
      for (std::uint32_t j = square.first; j < square.end; ++j) add(points_[j], 1);
      i = square.behind;
    } else {
      ++i;
    }
  }
  return push;
}

}  // namespace vorlane::layout
