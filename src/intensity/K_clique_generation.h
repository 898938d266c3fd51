#pragma once

#include <cstdint>

#include "intensity/K_cliques.h"
#include "intensity/Weighted_cliques.h"

namespace gns {

/// Sets `k_cliques` to the k-subsets of cliques whose link weight intensity, the geometric mean of
/// the weights of the links inside (J.-P. Onnela, J. Saramäki, J. Kertész, K. Kaski, Physical
/// Review E 71, 2005), is strictly greater than the threshold. `k` is at least 3. Reports and
/// polls; a stop throws and leaves `k_cliques` half filled.
void Generate_k_cls_from_cls_ec(const Weighted_cliques& cliques, K_cliques& k_cliques,
                                std::uint32_t k, double intensity_threshold);

/// The same from the cliques and links, see Weighted_cliques. What `k_cliques` holds of this k
/// stays in it.
void Generate_k_cls_from_cls_ec(const Clique_vector& cliques, const Index_links& index_links,
                                K_cliques& k_cliques, std::uint32_t k, double intensity_threshold);

}  // namespace gns
