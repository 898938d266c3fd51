#pragma once

#include <cstdint>
#include <ostream>

#include "communities/Communities.h"
#include "search/Clique_vector.h"
#include "search/Overlap_matrix.h"

namespace gns {

/// The k-clique communities at one k, from cliques and their overlap matrix; see Percolation, which
/// serves runs over many k. The first three arguments and the last are written. The matrix is a
/// view of the cliques, so its rows are not read; one without rows yields no communities.
void Coms_from_appr_ovlp_matr(Row_array<Node_index>& coms, Row_array<Index_pair>& com_links,
                              Row_array<Clique_index>& com_cliques, const Clique_vector& cliques,
                              const Overlap_matrix& overlap_matrix, std::uint32_t k,
                              std::uint32_t exact_clique_count, std::uint32_t& exact_com_count);

namespace Coms_report_sub {

/// Appends the report of the percolation at k: a rule and a line with the share of the k done.
void Report_com_export(std::uint32_t k, std::uint32_t max_clique_size, std::ostream& stream);

/// Number of decimal digits of k.
std::uint32_t Num_width(std::uint32_t k);

}  // namespace Coms_report_sub
}  // namespace gns
