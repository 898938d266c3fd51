#pragma once

#include <vector>

#include "search/Attempt.h"
#include "search/Local_graph.h"

namespace gns {

/// Finds all maximal cliques of the candidates of a local graph, two members or more, that no
/// excluded node is linked to as a whole.
///
/// Enumeration with a pivot and an excluded set on bit rows (E. Tomita, A. Tanaka, H. Takahashi,
/// Theoretical Computer Science 363, 2006, for the pivot; D. Eppstein, M. Löffler, D. Strash, ISAAC
/// 2010, for the outer order). Worst case 3^(n/3) for n candidates; the walk has a stack of its
/// own.
class Clique_walk {
 public:
  /// Replaces `found` by one row of local.words words per clique, cliques in ascending
  /// lexicographic order of their members. Where the attempt runs over, the cliques found until
  /// then are a part of them, and maximal all the same.
  void Find(const Local_graph& local, Attempt& attempt, std::vector<Bit_word>& found);

 private:
  template <std::size_t fixed_words>
  class Descent;

  std::vector<Bit_word> bits_;           ///< per level: the candidates, then those to branch on
  std::vector<std::uint32_t> excluded_;  ///< rows excluded at each level, level behind level
  std::vector<Bit_word> clique_;
  std::vector<std::size_t> branches_;  ///< per level: the candidate it branched on
  std::vector<std::size_t> excluded_starts_;
  std::vector<std::uint32_t> places_;
  std::vector<Bit_word> unsorted_;
};

}  // namespace gns
