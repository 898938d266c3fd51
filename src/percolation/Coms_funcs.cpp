#include "percolation/Coms_funcs.h"

#include <memory>
#include <string>

#include "foundation/text/My_double2string.h"
#include "foundation/text/My_int2string.h"
#include "percolation/Percolation.h"

namespace gns {

void Coms_from_appr_ovlp_matr(Row_array<Node_index>& coms, Row_array<Index_pair>& com_links,
                              Row_array<Clique_index>& com_cliques, const Clique_vector& cliques,
                              const Overlap_matrix& overlap_matrix, std::uint32_t k,
                              std::uint32_t exact_clique_count, std::uint32_t& exact_com_count) {
  constexpr bool nested = true;  // right for cliques of any kind
  Percolation percolation(cliques, exact_clique_count, nested);
  const auto found =
      overlap_matrix.size() == 0 ? std::make_shared<const Communities>() : percolation.At(k);
  coms = found->coms;
  com_links = found->com_links;
  com_cliques = found->com_cliques;
  exact_com_count = found->exact_com_count;
}

namespace Coms_report_sub {

void Report_com_export(std::uint32_t k, std::uint32_t max_clique_size, std::ostream& stream) {
  constexpr std::uint32_t rule_without_k = 48;
  const double done =
      100.0 * ((max_clique_size - k) + 0.5) / (static_cast<double>(max_clique_size) - 2);
  stream << std::string(Num_width(k) + rule_without_k, '_') << "\n"
         << " Extracting communities at k=" << int2string(k) << " (completed "
         << double2string(done, 2) << "%)\n";
}

std::uint32_t Num_width(std::uint32_t k) {
  return static_cast<std::uint32_t>(int2string(k).size());
}

}  // namespace Coms_report_sub
}  // namespace gns
