#include "layout/Network_layout.h"

#include <algorithm>
#include <cmath>
#include <string>

#include "control/Run_control.h"
#include "graph/Row_index.h"
#include "layout/Component_packing.h"
#include "layout/Quad_tree.h"
#include "layout/Starting_places.h"

namespace vorlane::layout {

namespace {

/// Both ways, whatever the direction of links.
gns::Row_index Neighbours(const Network& network) {
  const Rows links = network.Links();
  return {network.size(), [&](auto enter) {
            for (std::size_t node = 1; node < links.size(); ++node)
              for (const Node other : links[node]) {
                enter(static_cast<Node>(node), other);
                enter(other, static_cast<Node>(node));
              }
          }};
}

/// Nodes that pull and push each other.
class Forces {
 public:
  Forces(const gns::Row_index& neighbours, std::vector<Point> places)
      : neighbours_(neighbours), places_(std::move(places)), moves_(places_.size()) {
    for (const Point& place : places_)
      radius_ = std::max(radius_, std::sqrt(place.x * place.x + place.y * place.y));
  }

  void Settle() {
    const std::size_t count = places_.size() - 1;
    const std::size_t steps = Steps(count);
    auto& work = external_control::This_control().work_done;
    work.Begin(steps * count);
    // Far moves first, to untangle, then shorter and shorter ones.
    const double widest = std::max(2.0, radius_ / 5);
    for (std::size_t step = 0; step < steps; ++step) {
      const double rest = 1 - static_cast<double>(step) / static_cast<double>(steps);
      Step(std::max(0.01, widest * rest * rest));
      work.Set((step + 1) * count);
    }
    work.Begin(0);
  }

  [[nodiscard]] std::vector<Point> Places() && { return std::move(places_); }

 private:
  static std::size_t Steps(std::size_t count) {
    constexpr std::size_t visits = 1'500'000;
    constexpr std::size_t least = 25;
    constexpr std::size_t most = 400;
    return count == 0 ? 0 : std::clamp(visits / count, least, most);
  }

  void Step(double longest) {
    const Quad_tree tree({places_.data() + 1, places_.size() - 1});
    std::size_t polled = 0;
    for (const std::uint32_t position : tree.Order()) {
      constexpr std::size_t between_polls = 1024;
      if (++polled % between_polls == 0) external_control::Check_for_stop_signal();
      moves_[position + 1] = Shortened(Move_of(position + 1, tree), longest);
    }
    for (std::size_t node = 1; node < places_.size(); ++node) {
      places_[node].x += moves_[node].x;
      places_[node].y += moves_[node].y;
    }
  }

  /// Pushes fall with the distance d as 1 / d, pulls of links grow as d^2; alone, two linked nodes
  /// would come to rest 1 apart. A weak pull to the middle holds together what no link does.
  [[nodiscard]] Point Move_of(std::size_t node, const Quad_tree& tree) const {
    constexpr double least_squared = 0.01;
    constexpr double to_middle = 0.1;
    const Point& place = places_[node];
    Point move = tree.Push_at(place, least_squared);
    move.x -= to_middle * place.x;
    move.y -= to_middle * place.y;
    for (const Node other : neighbours_[static_cast<Node>(node)]) {
      const double dx = places_[other].x - place.x;
      const double dy = places_[other].y - place.y;
      const double distance = std::sqrt(dx * dx + dy * dy);
      move.x += distance * dx;
      move.y += distance * dy;
    }
    return move;
  }

  static Point Shortened(const Point& move, double longest) {
    const double length = std::sqrt(move.x * move.x + move.y * move.y);
    if (length <= longest) return move;
    return {move.x * longest / length, move.y * longest / length};
  }

  const gns::Row_index& neighbours_;
  std::vector<Point> places_;  ///< by node
  std::vector<Point> moves_;
  double radius_ = 0;
};

}  // namespace

Layout Layout_of(const Network& network, const queries::Forest& forest) {
  external_control::Report_state(std::string("Laying out the network\n"));
  Packed_forest packed = Pack_forest(forest, network.size());
  std::vector<bool> is_packed(std::size_t{network.size()} + 1);
  for (std::uint32_t place = 0; place < forest.size(); ++place)
    for (const Node node : forest.Own_nodes(place)) is_packed[node] = true;
  const gns::Row_index neighbours = Neighbours(network);
  Forces forces(neighbours, Starting_places(packed, is_packed, neighbours));
  forces.Settle();
  std::vector<Point> places = std::move(forces).Places();
  Pack_components(neighbours, places);
  return {std::move(places), std::move(packed.communities), packed.radius};
}

}  // namespace vorlane::layout
