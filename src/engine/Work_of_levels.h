#pragma once

#include <cstddef>
#include <cstdint>
#include <utility>
#include <vector>

#include "control/Run_control.h"

namespace gns {

/// Tells, while it lives, how much of the work on the levels is done. A level is as much as it has
/// cliques: nearly all of the time goes into their neighbours, which percolation asks for clique by
/// clique.
class Work_of_levels {
 public:
  /// `cliques_of_size[n]`: cliques of n nodes. The levels from `largest_k` down to `smallest_k`.
  Work_of_levels(std::vector<std::size_t> cliques_of_size, std::uint32_t largest_k,
                 std::uint32_t smallest_k)
      : cliques_from_(std::move(cliques_of_size)) {
    for (std::size_t size = cliques_from_.size(); size > 1; --size)
      cliques_from_[size - 2] += cliques_from_[size - 1];
    std::uint64_t total = 0;
    for (std::size_t k = smallest_k; k <= largest_k && k < cliques_from_.size(); ++k)
      total += cliques_from_[k];
    external_control::This_control().work_done.Begin(total);
  }
  ~Work_of_levels() { external_control::This_control().work_done.Begin(0); }
  Work_of_levels(const Work_of_levels&) = delete;
  Work_of_levels& operator=(const Work_of_levels&) = delete;

  void End_level(std::uint32_t k) {
    done_ += cliques_from_[k];
    external_control::This_control().work_done.Raise(done_);
  }

 private:
  std::vector<std::size_t> cliques_from_;  ///< [n]: cliques of n nodes or more
  std::uint64_t done_ = 0;
};

}  // namespace gns
