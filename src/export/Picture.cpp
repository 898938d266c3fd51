#include "export/Picture.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>
#include <numeric>

#include "queries/Shared_nodes.h"

namespace vorlane::exporting {

namespace {

constexpr Colour of_several = {68, 68, 68};
constexpr Colour of_no_community = {204, 204, 204};
constexpr std::array<Colour, 7> clear_colours = {{{0, 114, 178},
                                                  {230, 159, 0},
                                                  {0, 158, 115},
                                                  {204, 121, 167},
                                                  {86, 180, 233},
                                                  {213, 94, 0},
                                                  {240, 228, 66}}};

/// Turns by this angle never come close to each other.
constexpr double golden_angle = std::numbers::pi * (3.0 - 2.23606797749979);

/// Between neighbours in a disc.
constexpr double distance = 20;
constexpr double size_of_node = 10;

/// The i-th of points around a centre. If i points have `area` nodes inside them, these fill a disc
/// evenly.
Point In_spiral(double area, std::size_t i) {
  const double radius = distance * std::sqrt(area / std::numbers::pi);
  const double angle = golden_angle * static_cast<double>(i);
  return {static_cast<float>(radius * std::cos(angle)),
          static_cast<float>(radius * std::sin(angle))};
}

/// Of a disc of nodes, with room around it.
double Radius_of(std::size_t nodes) {
  return distance * (std::sqrt(static_cast<double>(nodes) / std::numbers::pi) + 1.0);
}

/// Finds places for discs, the largest first: in the middle, then in rings around it. No two of
/// them meet.
class Rings {
 public:
  Point Next(double radius) {
    if (outer_ == 0.0) {
      outer_ = radius;
      return {};
    }
    const double half_turn = width_ == 0.0 ? 0.0 : std::asin((before_ + radius) / (2 * Middle()));
    // A first disc needs half of its own turn again before the ring closes.
    if (width_ == 0.0 || angle_ + 2 * half_turn + closing_ > 2 * std::numbers::pi) {
      outer_ += 2 * width_;
      width_ = radius;
      angle_ = 0.0;
      closing_ = 2 * std::asin(radius / Middle());
    } else {
      angle_ += 2 * half_turn;
    }
    before_ = radius;
    return {static_cast<float>(Middle() * std::cos(angle_)),
            static_cast<float>(Middle() * std::sin(angle_))};
  }

  [[nodiscard]] double Outer_radius() const { return outer_ + 2 * width_; }

 private:
  [[nodiscard]] double Middle() const { return outer_ + width_; }

  double outer_ = 0.0;    ///< what is inside the ring at hand reaches so far
  double width_ = 0.0;    ///< radius of the first disc of the ring
  double angle_ = 0.0;    ///< of the disc that was placed last
  double before_ = 0.0;   ///< its radius
  double closing_ = 0.0;  ///< what lies between the last disc of the ring and the first
};

/// A colour of middle brightness; hues of neighbouring ranks are far apart.
Colour Of_hue(std::size_t rank) {
  constexpr double middle = 150;
  constexpr double span = 70;
  const double hue = golden_angle * static_cast<double>(rank);
  const auto part = [&](double turn) {
    return static_cast<std::uint8_t>(middle + span * std::cos(hue + turn));
  };
  constexpr double third = 2 * std::numbers::pi / 3;
  return {part(0), part(third), part(2 * third)};
}

}  // namespace

std::string Colour::In_hex() const {
  constexpr std::string_view digits = "0123456789abcdef";
  std::string hex = "#";
  for (const std::uint8_t part : {red, green, blue}) {
    hex += digits[part / digits.size()];
    hex += digits[part % digits.size()];
  }
  return hex;
}

Picture::Picture(const Selection& selection) {
  const auto k = selection.Shown_k();
  const Rows communities = k ? selection.Results().Communities_at(*k).members : Rows();
  holders_ = queries::Holders(selection.Network().size(), communities);
  Rank(communities);
  Place(communities);
}

void Picture::Rank(const Rows& communities) {
  by_size_.resize(communities.size());
  std::iota(by_size_.begin(), by_size_.end(), 0U);
  std::ranges::stable_sort(by_size_, std::ranges::greater(),
                           [&](std::uint32_t i) { return communities[i].size(); });
  rank_.resize(communities.size());
  for (std::uint32_t place = 0; place < by_size_.size(); ++place) rank_[by_size_[place]] = place;
}

void Picture::Place(const Rows& communities) {
  places_.resize(holders_.Node_count() + std::size_t{1});
  Rings rings;
  for (const std::uint32_t community : by_size_) {
    const auto members = communities[community];
    const Point centre = rings.Next(Radius_of(members.size()));
    for (std::size_t i = 0; i < members.size(); ++i) {
      const Node node = members[i];
      const auto share = 1.0F / static_cast<float>(holders_[node].size());
      const Point offset = In_spiral(static_cast<double>(i) + 0.5, i);
      places_[node].x += share * (centre.x + offset.x);
      places_[node].y += share * (centre.y + offset.y);
    }
  }
  const double inside = std::numbers::pi * std::pow(rings.Outer_radius() / distance, 2);
  std::size_t outside = 0;
  for (Node node = 1; node < places_.size(); ++node)
    if (holders_[node].empty()) {
      ++outside;
      places_[node] = In_spiral(inside + static_cast<double>(outside), outside);
    }
}

double Picture::Size_of(Node node) const {
  constexpr double in_several = 1.5;
  return Communities_of(node).size() > 1 ? in_several * size_of_node : size_of_node;
}

Colour Picture::Colour_of(Node node) const {
  const auto communities = Communities_of(node);
  if (communities.empty()) return of_no_community;
  return communities.size() > 1 ? of_several : Colour_of_community(communities[0]);
}

Colour Picture::Colour_of_community(std::uint32_t community) const {
  const std::size_t rank = rank_[community];
  return rank < clear_colours.size() ? clear_colours[rank] : Of_hue(rank);
}

}  // namespace vorlane::exporting
