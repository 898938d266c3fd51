#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "vorlane/results.h"

namespace vorlane::queries {

/// The figures of one k by which it is judged.
struct Level_summary {
  std::uint32_t k = 0;
  std::size_t communities = 0;
  std::size_t approximate = 0;     ///< of the communities
  std::size_t largest = 0;         ///< nodes of the largest community
  std::size_t second_largest = 0;  ///< 0 if there is only one
  std::size_t covered = 0;         ///< nodes in at least one community
  std::size_t overlapping = 0;     ///< nodes in two or more
  std::size_t overlaps = 0;        ///< pairs of communities that share nodes

  /// How many times the largest community outgrows the second; infinite if there is only one, 0 if
  /// there is none.
  [[nodiscard]] double Dominance() const;
};

struct Summary {
  Method method = Method::undirected;
  bool finished = true;
  std::size_t nodes = 0;
  std::vector<Level_summary> levels;  ///< k descending
};

/// From the statistics alone; reads nothing else of a directory. Throws as
/// Results::Statistics_at().
Summary Summary_of(const Results& results);

Level_summary Summary_of(std::uint32_t k, const Statistics& statistics);

}  // namespace vorlane::queries
