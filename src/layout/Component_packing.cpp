#include "layout/Component_packing.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <numeric>

#include "layout/Crowding.h"
#include "vorlane/rows.h"

namespace vorlane::layout {

namespace {

/// By node, the number of its component; they are numbered from 0. The place of node 0 has none.
std::vector<std::uint32_t> Components(const gns::Row_index& neighbours, std::uint32_t& count) {
  const std::uint32_t unknown = neighbours.Node_count();
  std::vector<std::uint32_t> components(std::size_t{neighbours.Node_count()} + 1, unknown);
  std::vector<Node> to_visit;
  count = 0;
  for (Node first = 1; first < components.size(); ++first) {
    if (components[first] != unknown) continue;
    components[first] = count;
    to_visit = {first};
    while (!to_visit.empty()) {
      const Node node = to_visit.back();
      to_visit.pop_back();
      for (const Node other : neighbours[node])
        if (components[other] == unknown) {
          components[other] = count;
          to_visit.push_back(other);
        }
    }
    ++count;
  }
  return components;
}

/// Around the middle of the nodes of each component.
std::vector<Circle> Circles_around(const std::vector<std::uint32_t>& components,
                                   const std::vector<Point>& places, std::uint32_t count) {
  constexpr double room = 0.7;
  std::vector<Circle> circles(count);
  std::vector<double> sizes(count, 0);
  for (std::size_t node = 1; node < places.size(); ++node) {
    Point& centre = circles[components[node]].centre;
    centre = {centre.x + places[node].x, centre.y + places[node].y};
    ++sizes[components[node]];
  }
  for (std::uint32_t i = 0; i < count; ++i)
    circles[i].centre = {circles[i].centre.x / sizes[i], circles[i].centre.y / sizes[i]};
  for (std::size_t node = 1; node < places.size(); ++node) {
    Circle& circle = circles[components[node]];
    const double dx = places[node].x - circle.centre.x;
    const double dy = places[node].y - circle.centre.y;
    circle.radius = std::max(circle.radius, std::sqrt(dx * dx + dy * dy) + room);
  }
  return circles;
}

/// Brings far nodes of each component closer to its middle, and gives close ones room: at the
/// distance r of a circle's R, a node goes to R (r / R)^0.875.
void Even_out(const std::vector<std::uint32_t>& components, const std::vector<Circle>& circles,
              std::vector<Point>& places) {
  for (std::size_t node = 1; node < places.size(); ++node) {
    const Circle& circle = circles[components[node]];
    const double dx = places[node].x - circle.centre.x;
    const double dy = places[node].y - circle.centre.y;
    const double part = std::sqrt(dx * dx + dy * dy) / circle.radius;
    if (part == 0) continue;
    const double stretch = 1 / std::sqrt(std::sqrt(std::sqrt(part)));
    places[node] = {circle.centre.x + stretch * dx, circle.centre.y + stretch * dy};
  }
}

/// The direction in which a component is longest, as a vector of length 1: from the second moments
/// of its nodes around its middle.
std::vector<Point> Long_axes(const std::vector<std::uint32_t>& components,
                             const std::vector<Circle>& circles, const std::vector<Point>& places) {
  struct Moments {
    double xx = 0;
    double yy = 0;
    double xy = 0;
  };
  std::vector<Moments> moments(circles.size());
  for (std::size_t node = 1; node < places.size(); ++node) {
    const double dx = places[node].x - circles[components[node]].centre.x;
    const double dy = places[node].y - circles[components[node]].centre.y;
    Moments& of = moments[components[node]];
    of = {of.xx + dx * dx, of.yy + dy * dy, of.xy + dx * dy};
  }
  std::vector<Point> axes;
  axes.reserve(moments.size());
  for (const auto& [xx, yy, xy] : moments) {
    const double half = (xx - yy) / 2;
    const double root = std::sqrt(half * half + xy * xy);
    // Of the two forms of the same vector the one that isn't near zero.
    const Point axis = half > 0 ? Point{half + root, xy} : Point{xy, root - half};
    const double length = std::sqrt(axis.x * axis.x + axis.y * axis.y);
    axes.push_back(length > 0 ? Point{axis.x / length, axis.y / length} : Point{1, 0});
  }
  return axes;
}

/// Turns each component so that it is longest from left to right, as names and screens are.
void Lay_flat(const std::vector<std::uint32_t>& components, const std::vector<Circle>& circles,
              std::vector<Point>& places) {
  const std::vector<Point> axes = Long_axes(components, circles, places);
  for (std::size_t node = 1; node < places.size(); ++node) {
    const Point& centre = circles[components[node]].centre;
    const Point& axis = axes[components[node]];
    const double dx = places[node].x - centre.x;
    const double dy = places[node].y - centre.y;
    places[node] = {centre.x + dx * axis.x + dy * axis.y, centre.y + dy * axis.x - dx * axis.y};
  }
}

/// How far apart nodes had to be to fill what their components take up, a part of it; 1 at most, as
/// far as two linked nodes would be.
double Least_distance(const std::vector<std::uint32_t>& components,
                      const std::vector<Circle>& circles, const std::vector<Point>& places) {
  constexpr double part = 0.7;
  std::vector<Point> reaches(circles.size());  // from the middle, each way
  for (std::size_t node = 1; node < places.size(); ++node) {
    const Point& centre = circles[components[node]].centre;
    Point& reach = reaches[components[node]];
    reach = {std::max(reach.x, std::abs(places[node].x - centre.x)),
             std::max(reach.y, std::abs(places[node].y - centre.y))};
  }
  double area = 0;
  for (const Point& reach : reaches) area += 4 * reach.x * reach.y;
  return std::min(1.0, part * std::sqrt(area / static_cast<double>(places.size())));
}

}  // namespace

void Pack_components(const gns::Row_index& neighbours, std::vector<Point>& places) {
  std::uint32_t count = 0;
  const std::vector<std::uint32_t> components = Components(neighbours, count);
  std::vector<Circle> before = Circles_around(components, places, count);
  Even_out(components, before, places);
  Lay_flat(components, before, places);
  Push_apart(places, Least_distance(components, before, places));
  before = Circles_around(components, places, count);
  std::vector<std::uint32_t> order(count);
  std::iota(order.begin(), order.end(), 0U);
  std::ranges::stable_sort(order, std::ranges::greater(),
                           [&](std::uint32_t i) { return before[i].radius; });
  std::vector<Circle> packed;
  packed.reserve(count);
  for (const std::uint32_t i : order) packed.push_back(before[i]);
  Pack(packed);
  std::vector<Point> shifts(count);
  for (std::uint32_t place = 0; place < count; ++place) {
    const Point& from = before[order[place]].centre;
    shifts[order[place]] = {packed[place].centre.x - from.x, packed[place].centre.y - from.y};
  }
  for (std::size_t node = 1; node < places.size(); ++node) {
    places[node].x += shifts[components[node]].x;
    places[node].y += shifts[components[node]].y;
  }
}

}  // namespace vorlane::layout
