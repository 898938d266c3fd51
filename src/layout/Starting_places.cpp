#include "layout/Starting_places.h"

#include <cmath>

namespace vorlane::layout {

namespace {

/// The points of a spiral that fills a ring evenly, one after the other (H. Vogel, Mathematical
/// Biosciences 44, 1979).
class Spiral {
 public:
  explicit Spiral(double inner_radius) : inner_(inner_radius) {}

  Point Next(double area) {
    filled_ += area;
    const double radius = std::sqrt(inner_ * inner_ + filled_);
    // A turn by the golden angle; cosine and sine of it.
    constexpr double cosine = -0.7373688780783198;
    constexpr double sine = 0.6754902942615238;
    const Point turned = {direction_.x * cosine - direction_.y * sine,
                          direction_.x * sine + direction_.y * cosine};
    const double length = std::sqrt(turned.x * turned.x + turned.y * turned.y);
    direction_ = {turned.x / length, turned.y / length};
    return {radius * direction_.x, radius * direction_.y};
  }

 private:
  double inner_;
  double filled_ = 0;
  Point direction_ = {1, 0};
};

/// Goes out from nodes that have places, neighbour by neighbour.
class Spreading {
 public:
  Spreading(std::vector<Point>& places, std::vector<bool> placed, const gns::Row_index& neighbours)
      : places_(places), placed_(std::move(placed)), neighbours_(neighbours) {
    for (Node node = 1; node < placed_.size(); ++node)
      if (placed_[node]) queue_.push_back(node);
    Spread();
  }

  /// One that has no place yet gets this one, with all that hangs on it around it.
  void Begin(Node node, const Point& place) {
    if (placed_[node]) return;
    places_[node] = place;
    placed_[node] = true;
    queue_.push_back(node);
    Spread();
  }

  [[nodiscard]] bool Has_place(Node node) const { return placed_[node]; }

 private:
  void Spread() {
    for (; done_ < queue_.size(); ++done_)
      for (const Node node : neighbours_[queue_[done_]])
        if (!placed_[node]) {
          placed_[node] = true;
          places_[node] = Beside(queue_[done_], node);
          queue_.push_back(node);
        }
  }

  [[nodiscard]] Point Beside(Node neighbour, Node node) const {
    constexpr double reach = 4;
    return {places_[neighbour].x + reach * Jitter(2 * std::uint64_t{node}),
            places_[neighbour].y + reach * Jitter(2 * std::uint64_t{node} + 1)};
  }

  std::vector<Point>& places_;
  std::vector<bool> placed_;
  const gns::Row_index& neighbours_;
  std::vector<Node> queue_;
  std::size_t done_ = 0;
};

}  // namespace

double Jitter(std::uint64_t seed) {
  // The last steps of splitmix64 (S. Vigna).
  std::uint64_t bits = (seed + 1) * 0x9e3779b97f4a7c15U;
  bits = (bits ^ bits >> 30U) * 0xbf58476d1ce4e5b9U;
  bits = (bits ^ bits >> 27U) * 0x94d049bb133111ebU;
  bits ^= bits >> 31U;
  return static_cast<double>(bits >> 11U) * 0x1p-53 - 0.5;
}

std::vector<Point> Starting_places(const Packed_forest& packed, const std::vector<bool>& is_packed,
                                   const gns::Row_index& neighbours) {
  std::vector<Point> places = packed.nodes;
  Spreading spreading(places, is_packed, neighbours);
  constexpr double area = 16;  // for a node and those that hang on it
  Spiral spiral(packed.radius);
  for (Node node = 1; node < places.size(); ++node)
    if (!spreading.Has_place(node)) spreading.Begin(node, spiral.Next(area));
  return places;
}

}  // namespace vorlane::layout
