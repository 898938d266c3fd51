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

}  // namespace gns
