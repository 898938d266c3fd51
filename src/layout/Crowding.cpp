#include "layout/Crowding.h"

#include <algorithm>
#include <cmath>
#include <cstdint>

#include "control/Run_control.h"

namespace vorlane::layout {

namespace {

/// The nodes in squares of a side, in rows, so that those near a node are found.
class Squares {
 public:
  Squares(const std::vector<Point>& places, double side) : places_(places), side_(side) {
    low_ = places[1];
    double right = low_.x;
    for (std::size_t node = 1; node < places.size(); ++node) {
      low_ = {std::min(low_.x, places[node].x), std::min(low_.y, places[node].y)};
      right = std::max(right, places[node].x);
    }
    columns_ = static_cast<std::int64_t>((right - low_.x) / side) + 3;
    for (std::uint32_t node = 1; node < places.size(); ++node)
      sorted_.emplace_back(Square_of(places[node]), node);
    std::ranges::sort(sorted_);
  }

  /// Calls use(other) for nodes of a greater number in the squares around a node's own.
  template <typename Use>
  void For_each_near(std::uint32_t node, Use use) const {
    const std::int64_t square = Square_of(places_[node]);
    for (const std::int64_t row : {square - columns_, square, square + columns_}) {
      auto near = std::ranges::lower_bound(sorted_, std::pair(row - 1, std::uint32_t{0}));
      for (; near != sorted_.end() && near->first <= row + 1; ++near)
        if (near->second > node) use(near->second);
    }
  }

 private:
  [[nodiscard]] std::int64_t Square_of(const Point& place) const {
    const auto column = static_cast<std::int64_t>((place.x - low_.x) / side_) + 1;
    return (static_cast<std::int64_t>((place.y - low_.y) / side_) + 1) * columns_ + column;
  }

  const std::vector<Point>& places_;
  double side_;
  Point low_;
  std::int64_t columns_ = 0;
  std::vector<std::pair<std::int64_t, std::uint32_t>> sorted_;
};

}  // namespace

void Push_apart(std::vector<Point>& places, double least) {
  if (places.size() < 3 || least <= 0) return;
  constexpr std::size_t visits = 500'000;
  const std::size_t rounds = std::clamp<std::size_t>(visits / places.size(), 4, 25);
  std::vector<Point> moves(places.size());
  for (std::size_t round = 0; round < rounds; ++round) {
    external_control::Check_for_stop_signal();
    std::ranges::fill(moves, Point{});
    const Squares squares(places, least);
    for (std::uint32_t node = 1; node < places.size(); ++node)
      squares.For_each_near(node, [&](std::uint32_t other) {
        const double dx = places[other].x - places[node].x;
        const double dy = places[other].y - places[node].y;
        const double distance = std::sqrt(dx * dx + dy * dy);
        if (distance >= least || distance == 0) return;
        constexpr double share = 0.3;  // of the way that is missing, for either
        const double part = share * (least - distance) / distance;
        moves[node] = {moves[node].x - part * dx, moves[node].y - part * dy};
        moves[other] = {moves[other].x + part * dx, moves[other].y + part * dy};
      });
    for (std::size_t node = 1; node < places.size(); ++node) {
      const double length =
          std::sqrt(moves[node].x * moves[node].x + moves[node].y * moves[node].y);
      const double part = length > least ? least / length : 1;
      places[node] = {places[node].x + part * moves[node].x, places[node].y + part * moves[node].y};
    }
  }
}

}  // namespace vorlane::layout
