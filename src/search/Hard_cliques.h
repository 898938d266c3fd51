#pragma once

#include "search/Clique_vector.h"

namespace gns {

/// Records what only failed attempts of a time-limited search found: the cliques of `hard_cliques`,
/// each once, in lexicographic order. Left out are those equal to a recorded clique and, with
/// `nested`, those that lie inside a recorded one.
void Record_hard_cliques(const Clique_vector& hard_cliques, bool nested, Clique_vector& cliques);

}  // namespace gns
