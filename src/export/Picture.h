#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "export/Selection.h"
#include "layout/Network_layout.h"

namespace vorlane::exporting {

struct Colour {
  std::uint8_t red;
  std::uint8_t green;
  std::uint8_t blue;

  [[nodiscard]] std::string In_hex() const;  ///< "#0072b2"
};

struct Point {
  float x = 0.0F;
  float y = 0.0F;
};

/// How a network is drawn: coloured by the communities at the shown k, and laid out, the same
/// whenever it is drawn.
class Picture {
 public:
  explicit Picture(const Selection& selection);

  /// Of the community that holds the node; a dark grey for several, a light one for none.
  [[nodiscard]] Colour Colour_of(Node node) const;
  /// The largest seven have colours that everybody can tell apart (M. Okabe, K. Ito, 2008).
  [[nodiscard]] Colour Colour_of_community(std::uint32_t community) const;
  /// At the shown k.
  [[nodiscard]] std::size_t Community_count() const { return rank_.size(); }
  [[nodiscard]] Point Place_of(Node node) const;
  /// The diameter, in the units of places.
  [[nodiscard]] double Size_of(Node node) const;
  /// By node: its communities at the shown k, ascending.
  [[nodiscard]] std::span<const std::uint32_t> Communities_of(Node node) const {
    return holders_[node];
  }

 private:
  void Rank(const Rows& communities);

  gns::Row_index holders_;
  std::vector<std::uint32_t> by_size_;  ///< the communities, the largest first
  std::vector<std::uint32_t> rank_;     ///< by community: its place there
  std::shared_ptr<const layout::Layout> layout_;
};

}  // namespace vorlane::exporting
