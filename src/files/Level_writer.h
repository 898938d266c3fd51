#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

#include "communities/Level_statistics.h"
#include "files/Results_writer.h"
#include "graph/Index_links.h"
#include "graph/Node_names.h"
#include "graph/Row_array.h"
#include "intensity/K_clique_communities.h"
#include "results/Com_result_tables.h"
#include "search/Clique_vector.h"

namespace gns {

/// The tables that a set of four distributions goes into; null where there are none.
struct Statistics_tables {
  By_k<Distribution_table>* membership = nullptr;
  By_k<Distribution_table>* size = nullptr;
  By_k<Distribution_table>* overlap = nullptr;
  By_k<Distribution_table>* degree = nullptr;
};

/// The files of one k, in a directory of their own, which is made. The entry of the k in a table is
/// replaced when the file is complete.
class Level_writer {
 public:
  /// `results` must outlive the object.
  Level_writer(const Results_writer& results, std::uint32_t k);

  /// A line per k-clique: its index and its members' names.
  void Write_k_cliques(const K_cliques& k_cliques, const Node_names& names) const;
  /// A line per community: its index and its members' names.
  void Write_communities(const Row_array<Node_index>& coms, std::uint32_t exact_count,
                         const Node_names& names) const;
  /// A line per community: its index and those of its cliques in claim order. On the lines of
  /// approximate communities approximate cliques carry the sign.
  void Write_com_cliques(const Row_array<Clique_index>& com_cliques, std::uint32_t exact_count,
                         std::uint32_t exact_clique_count) const;
  /// A block per community: a head line with its index, then a line per link. A link that
  /// `index_links` holds from the smaller to the greater index is shown so, any other the other
  /// way.
  void Write_com_links(const Row_array<Index_pair>& com_links, std::uint32_t exact_count,
                       const Index_links& index_links, const Node_names& names) const;
  /// The same for links inside k-cliques, which the link map holds from the smaller index to the
  /// greater; they are computed while they are written.
  void Write_com_links(const K_clique_com_links& com_links, std::uint32_t exact_count,
                       const Node_names& names) const;
  /// A line per pair of communities that share nodes: two indices and the number of nodes.
  void Write_com_graph(const Com_graph& com_graph, std::uint32_t exact_count) const;
  /// One set of distributions, or three where some communities are approximate.
  void Write_statistics(const Level_statistics& statistics) const;
  /// One set; `stat_flag` is the suffix of the file names: "_merged", "_exact", "_appr" or nothing.
  /// The tables are filled first.
  void Write_distributions(const Distributions& distributions, const std::string& stat_flag,
                           const Statistics_tables& tables) const;

 private:
  [[nodiscard]] std::string Path(const std::string& base_name) const;
  /// for_each_link(com, use) calls use(link) for each link of a community, with the nodes in the
  /// order in which they are shown.
  template <typename For_each_link>
  void Write_link_blocks(std::size_t com_count, std::uint32_t exact_count,
                         For_each_link for_each_link, const Node_names& names) const;

  const Results_writer& results_;
  std::uint32_t k_;
  std::string directory_;
};

}  // namespace gns
