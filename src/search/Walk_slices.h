#pragma once

#include <cstdint>
#include <vector>

#include "search/Local_graph.h"

namespace gns {

/// Shares out the first branches of a walk over a local graph to so many slices, of about equal
/// work: for each branch, ascending, the slice that walks it; none decreases. `candidates` and
/// `branches` are rows of bits; a branch has the candidates that it is linked to, but for the
/// branches in front of it.
std::vector<std::uint64_t> Slices_of_branches(const Local_graph& local, const Bit_word* candidates,
                                              const Bit_word* branches, std::uint64_t slices);

}  // namespace gns
