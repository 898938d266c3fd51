#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "graph/Index_links.h"
#include "search/Clique_vector.h"

namespace gns::parts {

/// How many cliques there are of each size, and links by the cliques that their ends are in.
struct Level_counts {
  std::vector<std::size_t> cliques_of;  ///< [n]: cliques of n nodes
  /// [n]: links whose ends are both in cliques of n nodes or more, and not both in greater ones.
  std::vector<std::size_t> links_of;
};

/// `blocks` are all cliques together. Polls as a long stage does.
Level_counts Count_for_levels(const std::vector<const Clique_vector*>& blocks,
                              const Index_links& links);

/// Estimates of the work on levels: a clique that is asked for its neighbours counts 1.
class Level_costs {
 public:
  explicit Level_costs(const Level_counts& counts);

  /// How often cliques stand in the lists of a walk that goes down to this k.
  [[nodiscard]] std::uint64_t Listed(std::uint64_t smallest_k) const;

  /// Of a process that finds every k from the largest to the smallest; the more, the dearer.
  [[nodiscard]] std::uint64_t Of(std::uint64_t largest_k, std::uint64_t smallest_k) const;

 private:
  // [n]: for all sizes from n on; nothing is behind the largest clique.
  std::vector<std::uint64_t> members_from_;  ///< of cliques
  std::vector<std::uint64_t> listed_from_;   ///< with a smallest k of n
  std::vector<std::uint64_t> links_from_;
  std::vector<std::uint64_t> work_from_;  ///< on the levels
};

}  // namespace gns::parts
