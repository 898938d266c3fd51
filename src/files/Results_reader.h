#pragma once

#include <cstdint>
#include <string>

#include "results/Com_result_tables.h"
#include "results/Method.h"

namespace gns {

/// Fills the tables, none of which may be missing, from a results directory. `specifier` names the
/// kind of run that wrote it: "directed", "intensity" or nothing; for anything else `errors` is
/// replaced by a message and no table is touched. The clique sizes are those of its subdirectories
/// "k=NUMBER".
///
/// A file that is missing or damaged stops only the reading of that file: a report is appended to
/// `errors`, and what was read before the fault is kept. Throws Xerror_msg if the directory can't
/// be listed.
void Read_coms(const std::string& results_dir, const std::string& specifier,
               const Table_pointers& tables, std::string& errors);
void Read_coms(const std::string& results_dir, Method method, const Table_pointers& tables,
               std::string& errors);
inline void Read_coms(const std::string& results_dir, const std::string& specifier,
                      Com_result_tables& tables, std::string& errors) {
  Read_coms(results_dir, specifier, Pointers_to(tables), errors);
}
/// The same with the nineteen tables one by one, in their order.
inline void Read_coms(
    const std::string& results_dir, const std::string& specifier, Name_pairs& graph_links,
    Names_by_index& cliques, By_k<Names_by_index>& k_cliques, By_k<Names_by_index>& communities,
    By_k<Links_by_index>& com_links, By_k<Indices_by_index>& com_cliques,
    By_k<Overlap_table>& com_graphs, By_k<Distribution_table>& size_dist_exact,
    By_k<Distribution_table>& degree_dist_exact, By_k<Distribution_table>& overlap_dist_exact,
    By_k<Distribution_table>& membership_dist_exact, By_k<Distribution_table>& size_dist_appr,
    By_k<Distribution_table>& degree_dist_appr, By_k<Distribution_table>& overlap_dist_appr,
    By_k<Distribution_table>& membership_dist_appr, By_k<Distribution_table>& size_dist_merged,
    By_k<Distribution_table>& degree_dist_merged, By_k<Distribution_table>& overlap_dist_merged,
    By_k<Distribution_table>& membership_dist_merged, std::string& errors) {
  const Table_pointers tables = {&graph_links,
                                 &cliques,
                                 &k_cliques,
                                 &communities,
                                 &com_links,
                                 &com_cliques,
                                 &com_graphs,
                                 &size_dist_exact,
                                 &degree_dist_exact,
                                 &overlap_dist_exact,
                                 &membership_dist_exact,
                                 &size_dist_appr,
                                 &degree_dist_appr,
                                 &overlap_dist_appr,
                                 &membership_dist_appr,
                                 &size_dist_merged,
                                 &degree_dist_merged,
                                 &overlap_dist_merged,
                                 &membership_dist_merged};
  Read_coms(results_dir, specifier, tables, errors);
}

/// Reads a distribution at k. The file `base_name` is that of a k without approximate communities
/// and goes into the exact table; only if there is no such file, the three with "_exact", "_appr"
/// and "_merged" behind their names are read. Faults are reported in `errors`.
void Read_VL_dists(const std::string& base_name, std::uint32_t k,
                   By_k<Distribution_table>& exact_table, By_k<Distribution_table>& appr_table,
                   By_k<Distribution_table>& merged_table, std::string& errors);

/// Reads one file of a distribution into the entry of k, which is replaced.
void Read_VL_distribution(const std::string& file_name, std::uint32_t k,
                          By_k<Distribution_table>& table, std::string& errors);

/// Reads the links of communities: blocks of a line "INDEX:" and lines of two names. A block
/// without links has no entry unless it is the last one. Throws Xep_file_not_found, or Xerror_msg
/// at a line that can't be read; the blocks before that of the line are kept.
void Read_com_links(Links_by_index& table, const std::string& file_name);

}  // namespace gns
