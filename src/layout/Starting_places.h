#pragma once

#include <vector>

#include "graph/Row_index.h"
#include "layout/Forest_packing.h"

namespace vorlane::layout {

/// A number between -0.5 and 0.5 from a seed, the same everywhere.
double Jitter(std::uint64_t seed);

/// Where the nodes stand before the forces begin: those of a community where it is packed, those
/// of none beside neighbours that have a place, and what is linked to no community around all.
std::vector<Point> Starting_places(const Packed_forest& packed, const std::vector<bool>& is_packed,
                                   const gns::Row_index& neighbours);

}  // namespace vorlane::layout
