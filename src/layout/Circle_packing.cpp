#include "layout/Circle_packing.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <vector>

#include "control/Run_control.h"

namespace vorlane::layout {

namespace {

double Squared_distance(const Point& a, const Point& b) {
  const double dx = a.x - b.x;
  const double dy = a.y - b.y;
  return dx * dx + dy * dy;
}

bool Overlap(const Circle& a, const Circle& b) {
  constexpr double touching = 1e-6;  // circles that touch are apart, however their places round
  const double reach = (a.radius + b.radius) * (1 - touching);
  return reach * reach > Squared_distance(a.centre, b.centre);
}

/// Where a circle touches two others, on the right of the way from `a` to `b`.
Point Touching(const Circle& a, const Circle& b, double radius) {
  const double dx = b.centre.x - a.centre.x;
  const double dy = b.centre.y - a.centre.y;
  const double squared = dx * dx + dy * dy;
  if (squared == 0) return {a.centre.x + a.radius + radius, a.centre.y};
  const double to_a = (a.radius + radius) * (a.radius + radius);
  const double to_b = (b.radius + radius) * (b.radius + radius);
  const double along = 0.5 + (to_a - to_b) / (2 * squared);
  const double aside = std::sqrt(std::max(0.0, to_a / squared - along * along));
  return {a.centre.x + along * dx + aside * dy, a.centre.y + along * dy - aside * dx};
}

/// The circles along the rim of what has been placed, in a ring.
class Front {
 public:
  explicit Front(std::span<Circle> circles)
      : circles_(circles), next_(circles.size()), before_(circles.size()) {
    Join(0, 1);
    Join(1, 0);
  }

  /// Puts a circle onto the rim, as near to the middle as it goes.
  void Place(std::size_t circle) {
    std::size_t a = Nearest();
    std::size_t b = next_[a];
    for (;;) {
      circles_[circle].centre = Touching(circles_[a], circles_[b], circles_[circle].radius);
      if (!Make_room(circle, a, b)) break;
    }
    Join(a, circle);
    Join(circle, b);
    start_ = a;
  }

 private:
  void Join(std::size_t a, std::size_t b) {
    next_[a] = b;
    before_[b] = a;
  }

  /// The circle of the rim from which the middle of it and the next one is nearest to the origin.
  [[nodiscard]] std::size_t Nearest() const {
    std::size_t nearest = start_;
    double least = Score(start_);
    for (std::size_t i = next_[start_]; i != start_; i = next_[i])
      if (const double score = Score(i); score < least) {
        least = score;
        nearest = i;
      }
    return nearest;
  }

  [[nodiscard]] double Score(std::size_t i) const {
    const Circle& a = circles_[i];
    const Circle& b = circles_[next_[i]];
    const double sum = a.radius + b.radius;
    const double x = (a.centre.x * b.radius + b.centre.x * a.radius) / sum;
    const double y = (a.centre.y * b.radius + b.centre.y * a.radius) / sum;
    return x * x + y * y;
  }

  /// If the circle meets one of the rim, the nearer of the two ways to that one is cut off: `a` or
  /// `b` becomes it.
  bool Make_room(std::size_t circle, std::size_t& a, std::size_t& b) const {
    std::size_t ahead = next_[b];
    std::size_t back = before_[a];
    double way_ahead = circles_[b].radius;
    double way_back = circles_[a].radius;
    while (true) {
      const bool goes_ahead = way_ahead <= way_back;
      const std::size_t met = goes_ahead ? ahead : back;
      if (met == (goes_ahead ? a : b)) return false;
      if (Overlap(circles_[circle], circles_[met])) {
        (goes_ahead ? b : a) = met;
        return true;
      }
      const bool was_last = ahead == back;
      (goes_ahead ? way_ahead : way_back) += circles_[met].radius;
      (goes_ahead ? ahead : back) = goes_ahead ? next_[met] : before_[met];
      if (was_last) return false;
    }
  }

  std::span<Circle> circles_;
  std::vector<std::size_t> next_;
  std::vector<std::size_t> before_;
  std::size_t start_ = 0;
};

/// The centre of a circle around all, which steps towards the farthest, less each time
/// (M. Bădoiu, K. L. Clarkson, SODA 2003).
Circle Around(std::span<const Circle> circles) {
  constexpr int steps = 100;
  Circle around{circles.front().centre, 0};
  for (int step = 1;; ++step) {
    const Circle* farthest = nullptr;
    double reach = -1;
    for (const Circle& circle : circles) {
      const double far = std::sqrt(Squared_distance(circle.centre, around.centre)) + circle.radius;
      if (far > reach) {
        reach = far;
        farthest = &circle;
      }
    }
    around.radius = reach;
    if (step == steps || reach <= farthest->radius) return around;
    // Towards the point of that circle which is farthest away.
    const double part = reach / (reach - farthest->radius) / (step + 1);
    around.centre.x += part * (farthest->centre.x - around.centre.x);
    around.centre.y += part * (farthest->centre.y - around.centre.y);
  }
}

}  // namespace

double Pack(std::span<Circle> circles) {
  if (circles.empty()) return 0;
  circles[0].centre = {};
  if (circles.size() == 1) return circles[0].radius;
  circles[1].centre = {circles[0].radius + circles[1].radius, 0};
  Front front(circles);
  for (std::size_t i = 2; i < circles.size(); ++i) {
    external_control::Check_for_stop_signal();
    front.Place(i);
  }
  const Circle around = Around(circles);
  for (Circle& circle : circles) {
    circle.centre.x -= around.centre.x;
    circle.centre.y -= around.centre.y;
  }
  return around.radius;
}

}  // namespace vorlane::layout
