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

/// Of neighbours that stand 1 apart in a layout.
constexpr float distance = 60;
constexpr double size_of_node = 10;

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

Picture::Picture(const Selection& selection) : layout_(selection.Layout()) {
  const auto k = selection.Shown_k();
  const Rows communities = k ? selection.Results().Communities_at(*k).members : Rows();
  holders_ = queries::Holders(selection.Network().size(), communities);
  Rank(communities);
}

Point Picture::Place_of(Node node) const {
  const layout::Point& place = layout_->nodes[node];
  return {distance * static_cast<float>(place.x), distance * static_cast<float>(place.y)};
}

void Picture::Rank(const Rows& communities) {
  by_size_.resize(communities.size());
  std::iota(by_size_.begin(), by_size_.end(), 0U);
  std::ranges::stable_sort(by_size_, std::ranges::greater(),
                           [&](std::uint32_t i) { return communities[i].size(); });
  rank_.resize(communities.size());
  for (std::uint32_t place = 0; place < by_size_.size(); ++place) rank_[by_size_[place]] = place;
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
