#pragma once

#include <cstddef>
#include <cstdint>

#include "engine/Levels.h"
#include "graph/Node_names.h"

namespace gns {

/// What the directories k=... of a run take at most. The largest 64-bit number means that or more.
struct Results_bound {
  std::uint64_t entries = 0;  ///< names, numbers, links and values in the files
  std::uint64_t files = 0;
  std::uint64_t directories = 0;
  std::uint64_t bytes = 0;  ///< of the files, without the pairs of communities
  /// Of the lines for pairs of communities that overlap. A run holds all pairs of a level in
  /// memory, so memory limits them; what could be, as a rule, is far from what is.
  std::uint64_t pair_bytes = 0;

  /// What they take on a file system that hands out blocks.
  [[nodiscard]] std::uint64_t On_disk(std::uint64_t block_size) const;
};

/// The bound for the levels from `largest_k` down to `least_k`, both of them included, with a
/// header of so many bytes in each file; takes a small part of the time that finding them takes. An
/// intensity run can hold far less, since a threshold leaves out k-cliques, but all of them count
/// here. Polls as a long stage does.
Results_bound Bound_of_results(const Levels_input& input, const Node_names& names,
                               std::size_t header_bytes, std::uint32_t largest_k,
                               std::uint32_t least_k);

}  // namespace gns
