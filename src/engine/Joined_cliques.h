#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "graph/Adjacency.h"
#include "graph/Index_links.h"
#include "graph/Node_names.h"
#include "search/Clique_vector.h"

namespace gns {

/// What the communities at one k hold at most, all together. As doubles, which don't overflow.
struct Level_counts {
  double communities = 0.0;
  double cliques = 0.0;
  double clique_bytes = 0.0;  ///< of their numbers, each with a blank
  double members = 0.0;
  double member_bytes = 0.0;  ///< of their names, each with a blank
  double links = 0.0;
  double link_bytes = 0.0;   ///< of their lines
  double second_size = 0.0;  ///< members of the second largest; no two share more
};

/// Bounds from above on what communities hold, without finding them.
///
/// Of the cliques that share k - 1 nodes or more only some pairs are joined: each clique with the
/// one that was the last to hold most of its nodes. Groups of these lie inside communities,
/// so together they hold at least as much. The work is linear in the members of all cliques, and in
/// the links.
class Joined_cliques {
 public:
  /// Cliques at and behind `exact_clique_count` may lack links, which then count as if they were
  /// there. The cliques must outlive the object.
  Joined_cliques(const Clique_vector& cliques, std::uint32_t exact_clique_count,
                 const Index_links& index_links, const Node_names& node_names);

  /// The bounds at k, to be asked for k descending. Polls as a long stage does.
  const Level_counts& At(std::uint32_t k);

 private:
  /// Things that are written, and the bytes that they take.
  struct Amount {
    double count = 0.0;
    double bytes = 0.0;

    Amount& operator+=(const Amount& other);
    Amount& operator-=(const Amount& other);
  };
  /// Cliques that are joined; kept for the one that stands for them. What joined cliques share
  /// counts once.
  struct Group {
    Amount nodes;
    Amount links;
  };
  void Count_in_graph(const Index_links& index_links);
  void Find_partners();
  void Enter(Clique_index clique);
  void Join(Clique_index clique, Clique_index earlier);
  Clique_index Representative(Clique_index clique);
  void Recount();
  static Amount Smaller(const Amount& a, const Amount& b);
  static Amount Links_among(const Amount& nodes);

  const Clique_vector& cliques_;
  std::uint32_t exact_clique_count_;
  std::vector<double> name_bytes_;  ///< per node: of its name and a blank
  std::uint32_t largest_ = 0;
  Adjacency of_size_;  ///< size -> cliques
  /// Per size: the nodes, and the links between nodes, that are in cliques of this size or more.
  std::vector<Amount> nodes_;
  std::vector<Amount> links_;
  std::vector<Clique_index> partner_of_;  ///< per clique: an earlier one
  std::vector<std::uint32_t> levels_;     ///< per clique: where it joins that; 0: nowhere
  std::vector<Amount> shared_;            ///< per clique: nodes that it shares with that
  Adjacency of_level_;                    ///< level -> cliques
  std::uint32_t reached_;                 ///< the smallest size and level that counts
  std::vector<Clique_index> leads_to_;    ///< per clique: another of its group, or itself
  std::vector<Group> groups_;
  std::vector<Clique_index> representatives_;  ///< of the groups, and perhaps others
  Level_counts counts_;
};

}  // namespace gns
