#pragma once

#include <cstdint>

#include "search/Clique_vector.h"
#include "search/Left_map.h"
#include "search/Overlap_matrix.h"

namespace gns {

/// Sets `core` to the core cliques of what was left: for each hard node, ascending, its neighbours
/// among the hard nodes, but no set that lies inside another one (of equal sets the first stays) or
/// inside one of `cliques`. Polls the stop flag.
void Appr_core_cliques_ec(const Left_map& left_map, const Clique_vector& cliques,
                          Clique_vector& core);

/// The same under the name for directed graphs: links count whatever their direction.
inline void Appr_core_cliques_dir_ec(const Left_map& left_map, const Clique_vector& cliques,
                                     Clique_vector& core) {
  Appr_core_cliques_ec(left_map, cliques, core);
}

/// Appends the core cliques to the exact ones. Core cliques inside an exact clique are left out,
/// and exact cliques inside a core clique that stays are taken out; the order is kept.
void Extend_clique_vec(Clique_vector& cliques, std::uint32_t& exact_clique_count,
                       Clique_vector& core);

/// Brings the matrix to the vector with its approximate cliques. Polls the stop flag.
void Extend_ovlp_matr_ec(Overlap_matrix& overlap_matrix, const Clique_vector& cliques,
                         std::uint32_t exact_clique_count);

}  // namespace gns
