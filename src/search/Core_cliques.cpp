#include "search/Core_cliques.h"

#include <algorithm>
#include <utility>

#include "control/Run_control.h"
#include "search/Inclusion_index.h"

namespace gns {

namespace {

/// The rows of `sets`, in order, that no set of `index` covers.
Clique_vector Not_covered_by(const Inclusion_index& index, const Clique_vector& sets) {
  Clique_vector kept;
  for (std::size_t i = 0; i < sets.size(); ++i) {
    external_control::Check_inside_long_stage();
    if (!index.Covers(sets[i])) kept.push_back(sets[i]);
  }
  return kept;
}

}  // namespace

void Appr_core_cliques_ec(const Left_map& left_map, const Clique_vector& cliques,
                          Clique_vector& core) {
  core.clear();
  const Inclusion_index exact(cliques);
  const Inclusion_index others(left_map.neighs);
  for (std::uint32_t i = 0; i < left_map.size(); ++i) {
    external_control::Check_for_stop_signal();
    const Node_span set = left_map.neighs[i];
    if (exact.Covers(set)) continue;
    const auto takes_its_place = [&](std::uint32_t other) {
      return other != i && (other < i || left_map.neighs[other].size() > set.size());
    };
    if (!others.Covers(set, takes_its_place)) core.push_back(set);
  }
}

void Extend_clique_vec(Clique_vector& cliques, std::uint32_t& exact_clique_count,
                       Clique_vector& core) {
  core = Not_covered_by(Inclusion_index(cliques), core);
  cliques = Not_covered_by(Inclusion_index(core), cliques);
  exact_clique_count = static_cast<std::uint32_t>(cliques.size());
  for (std::size_t i = 0; i < core.size(); ++i) cliques.push_back(core[i]);
}

void Extend_ovlp_matr_ec(Overlap_matrix& overlap_matrix, const Clique_vector& cliques,
                         std::uint32_t /*exact_clique_count*/) {
  external_control::Check_for_stop_signal();
  overlap_matrix = Overlap_matrix(cliques);
}

}  // namespace gns
