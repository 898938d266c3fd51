#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace gns {

/// One of several shares of the walk for a node, of about equal work: together they find all, each
/// clique once. Some may find nothing.
struct Walk_slice {
  std::uint64_t index = 0;
  std::uint64_t count = 1;

  [[nodiscard]] bool Is_whole() const { return count == 1; }
  /// The shares of all slices are `work` together.
  [[nodiscard]] std::uint64_t Share_of(std::uint64_t work) const {
    return work / count + static_cast<std::uint64_t>(index < work % count);
  }
};

/// What a search is cut into: the nodes at the places from `first` up to `last` of the node order,
/// or a slice of the walk for a single one.
struct Search_range {
  std::uint64_t first = 0;
  std::uint64_t last = 0;
  Walk_slice slice = {};
};

/// Cuts the places of an order, at each of which there is so much work, into `count` ranges or
/// fewer of about equal work, one behind the other. A place that has the work of several is cut
/// into slices.
std::vector<Search_range> Ranges_of(const std::vector<std::uint64_t>& works, std::size_t count);

/// The work of a range, in equal shares for slices.
std::uint64_t Work_of(const Search_range& range, const std::vector<std::uint64_t>& works);

}  // namespace gns
