#include "layout/Forest_packing.h"

#include <algorithm>
#include <cmath>
#include <cstdint>

#include "graph/Row_index.h"

namespace vorlane::layout {

namespace {

using queries::Forest;

constexpr double gap = 0.6;  ///< between neighbours, in radii of nodes

/// Packs from the tightest communities up, each around its own middle, and then moves them, from
/// the widest down, to where their parents are.
class Forest_packer {
 public:
  Forest_packer(const Forest& forest, Node node_count)
      : forest_(forest),
        children_(forest.size() + 1,
                  [&](auto enter) {
                    for (std::uint32_t place = 0; place < forest.size(); ++place)
                      enter(Row_of_parent(place), place);
                  }),
        residents_(forest.size(), [&, homes = forest.Homes(node_count)](auto enter) {
          for (Node node = 1; node <= node_count; ++node)
            if (homes[node] != Forest::none) enter(homes[node] + 1, node);
        }) {
    packed_.communities.resize(forest.size());
    packed_.nodes.resize(std::size_t{node_count} + 1);
  }

  Packed_forest Pack_all() {
    for (std::uint32_t place = forest_.size(); place-- > 0;) Pack_one(place);
    packed_.radius = Pack_inside(children_[forest_.size() + 1], {});
    for (std::uint32_t place = 0; place < forest_.size(); ++place) Move_to_parent(place);
    return std::move(packed_);
  }

 private:
  /// Those of no parent have the last row.
  [[nodiscard]] std::uint32_t Row_of_parent(std::uint32_t place) const {
    const std::uint32_t parent = forest_.Parent(place);
    return (parent == Forest::none ? forest_.size() : parent) + 1;
  }

  void Pack_one(std::uint32_t place) {
    const auto children = children_[place + 1];
    Circle& circle = packed_.communities[place];
    if (children.size() == 1 && forest_.Size(children[0]) == forest_.Size(place)) {
      circle.radius = packed_.communities[children[0]].radius;
      return;
    }
    const double needed = std::sqrt(forest_.Size(place)) * (1 + gap / 2);
    circle.radius = std::max(needed, Pack_inside(children, residents_[place + 1])) + gap;
  }

  double Pack_inside(std::span<const std::uint32_t> children, std::span<const Node> residents) {
    order_.assign(children.begin(), children.end());
    std::ranges::stable_sort(order_, std::ranges::greater(), [&](std::uint32_t place) {
      return packed_.communities[place].radius;
    });
    circles_.clear();
    for (const std::uint32_t place : order_)
      circles_.push_back({{}, packed_.communities[place].radius + gap / 2});
    circles_.resize(order_.size() + residents.size(), {{}, 1 + gap / 2});
    const double radius = Pack(circles_);
    auto circle = circles_.begin();
    for (const std::uint32_t place : order_) packed_.communities[place].centre = circle++->centre;
    for (const Node node : residents) packed_.nodes[node] = circle++->centre;
    return radius;
  }

  void Move_to_parent(std::uint32_t place) {
    Circle& circle = packed_.communities[place];
    if (const std::uint32_t parent = forest_.Parent(place); parent != Forest::none) {
      circle.centre.x += packed_.communities[parent].centre.x;
      circle.centre.y += packed_.communities[parent].centre.y;
    }
    for (const Node node : residents_[place + 1]) {
      packed_.nodes[node].x += circle.centre.x;
      packed_.nodes[node].y += circle.centre.y;
    }
  }

  const Forest& forest_;
  gns::Row_index children_;   ///< by place + 1
  gns::Row_index residents_;  ///< by place + 1: the nodes that have their home there
  Packed_forest packed_;
  std::vector<std::uint32_t> order_;
  std::vector<Circle> circles_;
};

}  // namespace

Packed_forest Pack_forest(const Forest& forest, Node node_count) {
  return Forest_packer(forest, node_count).Pack_all();
}

}  // namespace vorlane::layout
