#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

#include "graph/Row_index.h"
#include "vorlane/results.h"

namespace vorlane::exporting {

/// The communities that hold a node, over several levels.
class Memberships {
 public:
  Memberships(Node node_count, const std::vector<Communities>& levels);

  /// True if communities at the level are approximate.
  [[nodiscard]] bool Has_approximate(std::size_t level) const {
    return first_approximate_of_[level] < first_of_[level + 1];
  }

  /// The communities of a node at one level: their numbers at that level, ascending.
  class At_level {
   public:
    At_level(std::span<const std::uint32_t> places, std::uint32_t first,
             std::uint32_t first_approximate)
        : places_(places), first_(first), first_approximate_(first_approximate) {}
    [[nodiscard]] std::size_t size() const { return places_.size(); }
    /// How many of them are approximate.
    [[nodiscard]] std::size_t Approximate_count() const {
      return static_cast<std::size_t>(places_.end() -
                                      std::ranges::lower_bound(places_, first_approximate_));
    }
    [[nodiscard]] std::uint32_t operator[](std::size_t i) const { return places_[i] - first_; }

   private:
    std::span<const std::uint32_t> places_;
    std::uint32_t first_;
    std::uint32_t first_approximate_;
  };

  /// Calls use(position of the level, At_level) for each level that has communities of the node.
  template <typename Use>
  void For_each_level(Node node, Use use) const {
    std::span<const std::uint32_t> rest = places_[node];
    for (std::size_t level = 0; !rest.empty(); ++level) {
      std::size_t here = 0;
      while (here < rest.size() && rest[here] < first_of_[level + 1]) ++here;
      if (here > 0)
        use(level, At_level(rest.first(here), first_of_[level], first_approximate_of_[level]));
      rest = rest.subspan(here);
    }
  }

 private:
  std::vector<std::uint32_t> first_of_;  ///< per level, and the end: communities in front of it
  std::vector<std::uint32_t> first_approximate_of_;  ///< per level, counted in the same way
  gns::Row_index places_;  ///< per node: positions among the communities of all levels
};

}  // namespace vorlane::exporting
