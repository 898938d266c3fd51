#include "layout/Component_packing.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <numeric>

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

}  // namespace

void Pack_components(const gns::Row_index& neighbours, std::vector<Point>& places) {
  std::uint32_t count = 0;
  const std::vector<std::uint32_t> components = Components(neighbours, count);
  const std::vector<Circle> before = Circles_around(components, places, count);
  Even_out(components, before, places);
  std::vector<std::uint32_t> order(count);
  std::iota(order.begin(), order.end(), 0U);
  std::ranges::stable_sort(order, std::ranges::greater(),
                           [&](std::uint32_t i) { return before[i].radius; });
  std::vector<Circle> packed;
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
