#pragma once

#include "search/Clique_vector.h"

namespace gns {

/// Records what only failed attempts of a time-limited search found: the cliques of `hard_cliques`,
/// each once, in lexicographic order, but those that are recorded already. All are maximal, so none
/// lies inside another.
void Record_hard_cliques(const Clique_vector& hard_cliques, Clique_vector& cliques);

}  // namespace gns
