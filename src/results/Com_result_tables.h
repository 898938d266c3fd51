#pragma once

#include <cstdint>
#include <map>
#include <tuple>

#include "results/Index_list.h"
#include "results/Name_list.h"
#include "results/Name_pairs.h"
#include "results/Overlap_table.h"
#include "results/Table_by_index.h"

namespace gns {

/// The results of a run by the names of the nodes, as they stand in the files of its directory.
///
/// The key of the clique or community at position i is i if it is exact and -i if it is
/// approximate; at position 0 it is 0 for both. The clique indices inside `com_cliques` and the
/// community indices of `com_graphs` carry their signs in the same way.

using Names_by_index = Table_by_index<Name_list>;
using Links_by_index = Table_by_index<Name_pairs>;
using Indices_by_index = Table_by_index<Index_list>;
/// Value -> how often it occurs.
using Distribution_table = std::map<std::uint32_t, std::uint32_t>;

/// The tables of the clique sizes k that were treated.
template <typename Table>
using By_k = std::map<std::uint32_t, Table>;

struct Com_result_tables {
  Name_pairs graph_links;              ///< one per line of the graph file
  Names_by_index cliques;              ///< clique -> members
  By_k<Names_by_index> k_cliques;      ///< k-clique -> members; of an intensity run only
  By_k<Names_by_index> communities;    ///< community -> members
  By_k<Links_by_index> com_links;      ///< community -> links
  By_k<Indices_by_index> com_cliques;  ///< community -> cliques; of no intensity run
  By_k<Overlap_table> com_graphs;

  /// The distributions over the exact communities; at a k without approximate ones, over all.
  By_k<Distribution_table> size_dist_exact;
  By_k<Distribution_table> degree_dist_exact;
  By_k<Distribution_table> overlap_dist_exact;
  By_k<Distribution_table> membership_dist_exact;
  /// Over the approximate communities, and over all; only at those k that have approximate ones.
  By_k<Distribution_table> size_dist_appr;
  By_k<Distribution_table> degree_dist_appr;
  By_k<Distribution_table> overlap_dist_appr;
  By_k<Distribution_table> membership_dist_appr;
  By_k<Distribution_table> size_dist_merged;
  By_k<Distribution_table> degree_dist_merged;
  By_k<Distribution_table> overlap_dist_merged;
  By_k<Distribution_table> membership_dist_merged;

  bool operator==(const Com_result_tables&) const = default;
};

/// The nineteen tables by reference, in their order.
inline auto All_tables(Com_result_tables& t) {
  return std::tie(t.graph_links, t.cliques, t.k_cliques, t.communities, t.com_links, t.com_cliques,
                  t.com_graphs, t.size_dist_exact, t.degree_dist_exact, t.overlap_dist_exact,
                  t.membership_dist_exact, t.size_dist_appr, t.degree_dist_appr,
                  t.overlap_dist_appr, t.membership_dist_appr, t.size_dist_merged,
                  t.degree_dist_merged, t.overlap_dist_merged, t.membership_dist_merged);
}

/// Where the nineteen tables are; null where nobody wants one. One that stands at several places
/// is filled from each of them, in the order of filling.
struct Table_pointers {
  Name_pairs* graph_links = nullptr;
  Names_by_index* cliques = nullptr;
  By_k<Names_by_index>* k_cliques = nullptr;
  By_k<Names_by_index>* communities = nullptr;
  By_k<Links_by_index>* com_links = nullptr;
  By_k<Indices_by_index>* com_cliques = nullptr;
  By_k<Overlap_table>* com_graphs = nullptr;
  By_k<Distribution_table>* size_dist_exact = nullptr;
  By_k<Distribution_table>* degree_dist_exact = nullptr;
  By_k<Distribution_table>* overlap_dist_exact = nullptr;
  By_k<Distribution_table>* membership_dist_exact = nullptr;
  By_k<Distribution_table>* size_dist_appr = nullptr;
  By_k<Distribution_table>* degree_dist_appr = nullptr;
  By_k<Distribution_table>* overlap_dist_appr = nullptr;
  By_k<Distribution_table>* membership_dist_appr = nullptr;
  By_k<Distribution_table>* size_dist_merged = nullptr;
  By_k<Distribution_table>* degree_dist_merged = nullptr;
  By_k<Distribution_table>* overlap_dist_merged = nullptr;
  By_k<Distribution_table>* membership_dist_merged = nullptr;

  bool operator==(const Table_pointers&) const = default;
};

inline Table_pointers Pointers_to(Com_result_tables& tables) {
  return std::apply([](auto&... table) { return Table_pointers{&table...}; }, All_tables(tables));
}

}  // namespace gns
