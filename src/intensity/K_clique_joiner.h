#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "intensity/K_clique_groups.h"
#include "intensity/K_clique_tree.h"
#include "intensity/Sub_links.h"
#include "search/Clique_reports.h"

namespace gns {

/// Unites the k-cliques that share a subset of k - 1 nodes which passes an intensity threshold.
///
/// The subsets are gone through by their beginnings, with all k-cliques that hold such a beginning
/// at hand: those that begin so, a branch of the tree, and those that have one node more there,
/// which are some branches one deeper. Where these are in one group already, no subset that begins
/// so is looked at. So that this is soon the case, what begins with the same nodes is joined first,
/// from the longest beginnings to the shortest.
class K_clique_joiner {
 public:
  /// `tree` and `logs` must outlive the object.
  K_clique_joiner(const K_clique_tree& tree, const Link_logs& logs, double intensity_threshold);

  /// Polls. Throws Xerror_msg if it misses a link.
  K_clique_groups& Join(Progress_report& progress);

 private:
  using Index = K_clique_tree::Index;
  static constexpr Index none = ~Index{0};

  /// Subsets that begin with the same nodes.
  struct Beginning {
    std::uint32_t depth;  ///< number of these nodes
    Node_index last;      ///< of these nodes
    Index branch;         ///< of the k-cliques that begin with them, or none
    std::size_t longer;   ///< the branches with one node more stand in longer_ from here on
  };
  /// What is known of a branch; the k-cliques themselves have none.
  struct Mark {
    bool one_group = false;
    bool refused = false;  ///< with k - 1 nodes: these don't pass
  };
  /// The subsets that go on with one node.
  struct Next {
    std::uint32_t count = 0;  ///< of branches with one node more
    Index branch = none;
    bool joins = false;     ///< something that isn't in one group yet
    std::size_t place = 0;  ///< of the next of them in longer_
  };

  void Join_ends(Index index);
  void Join_inside(std::uint32_t depth, Index index);
  void Join_all(Progress_report* progress);
  void Join_subset(const Beginning& subset);
  void Divide(const Beginning& beginning);
  void Note_next(const Beginning& beginning);
  [[nodiscard]] bool Is_in_one_group(std::uint32_t depth, Index index) const {
    return depth == tree_.K() || marks_[tree_.Place(depth, index)].one_group;
  }
  [[nodiscard]] K_clique_index Group_of(std::uint32_t depth, Index index) {
    return groups_.First_of(tree_.First_k_clique(depth, index));
  }
  [[nodiscard]] bool Are_in_one_group(const Beginning& beginning);
  [[nodiscard]] bool Are_in_one_group(std::uint32_t depth, K_clique_tree::Range branches);
  [[nodiscard]] bool Passes(Node_span subset);

  const K_clique_tree& tree_;
  const Link_logs& logs_;
  double threshold_;
  bool all_pass_;
  K_clique_groups groups_;
  std::vector<Mark> marks_;            ///< per branch
  std::vector<Beginning> beginnings_;  ///< that are left to do, the next one last
  std::vector<Index> longer_;
  std::vector<Index> at_hand_;      ///< those of the beginning at hand
  std::vector<Node_index> subset_;  ///< its nodes
  std::vector<Next> next_;          ///< per node
  std::vector<Node_index> next_nodes_;
  Sub_links sub_links_;
};

}  // namespace gns
