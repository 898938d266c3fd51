#pragma once

#include "search/Clique_vector.h"

namespace gns {

/// What failed attempts of a time-limited search found. A node that fails again finds the same
/// cliques again: repeats are dropped when they have come to half of what is held.
class Hard_cliques {
 public:
  /// Takes the cliques from position `first` on off the end of `cliques`.
  void Take_from(Clique_vector& cliques, std::size_t first);

  /// Records the cliques, each once, in lexicographic order, but those that are recorded already.
  /// All are maximal, so none lies inside another.
  void Record(Clique_vector& cliques);

 private:
  void Drop_repeats();

  Clique_vector found_;
  std::size_t distinct_ = 0;  ///< cliques left when repeats were last dropped
};

}  // namespace gns
