#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "intensity/K_cliques.h"

namespace gns {

/// K-cliques by their beginnings: a branch at depth d stands for those that begin with the same d
/// nodes, the only one at depth 0 for all, and at depth k stand the k-cliques themselves.
class K_clique_tree {
 public:
  /// Position among the branches of the same depth, which ascend as the k-cliques do.
  using Index = std::uint32_t;
  struct Range {
    Index begin;
    Index end;
  };

  /// `k_cliques` must outlive the object and not be empty. Polls as a long stage does.
  explicit K_clique_tree(const K_cliques& k_cliques);

  [[nodiscard]] const K_cliques& All() const { return k_cliques_; }
  [[nodiscard]] std::uint32_t K() const { return k_cliques_.K(); }
  /// Number of branches at a depth.
  [[nodiscard]] Index Count(std::uint32_t depth) const {
    return static_cast<Index>(starts_[depth + 1] - starts_[depth] - 1);
  }

  /// Position among all branches, below Place_count(); not for k-cliques.
  [[nodiscard]] std::size_t Place(std::uint32_t depth, Index index) const {
    return starts_[depth] + index;
  }
  [[nodiscard]] std::size_t Place_count() const { return branches_.size(); }
  [[nodiscard]] Node_index Largest_node() const { return largest_node_; }

  /// The branches at the next depth that a branch divides into; not for k-cliques.
  [[nodiscard]] Range Children(std::uint32_t depth, Index index) const {
    const Branch* const branch = &branches_[Place(depth, index)];
    return {branch[0].first_child, branch[1].first_child};
  }
  /// The last of the nodes that a branch begins with.
  [[nodiscard]] Node_index Last(std::uint32_t depth, Index index) const {
    return depth < K() ? branches_[Place(depth, index)].last : k_cliques_[index].back();
  }
  [[nodiscard]] K_clique_index First_k_clique(std::uint32_t depth, Index index) const {
    return depth < K() ? branches_[Place(depth, index)].first_k_clique : index;
  }
  /// How many nodes a k-clique begins with as the one before it does.
  [[nodiscard]] std::uint32_t Shared_with_previous(K_clique_index k_clique) const {
    return shared_with_previous_[k_clique];
  }

 private:
  struct Branch {
    Node_index last;
    Index first_child;
    K_clique_index first_k_clique;
  };

  void Compare_neighbours();
  void Make_branches();

  const K_cliques& k_cliques_;
  std::vector<std::uint32_t> shared_with_previous_;
  std::vector<std::size_t> starts_;  ///< per depth below k, and the end
  Node_index largest_node_ = 0;
  std::vector<Branch> branches_;  ///< by depth; one behind those of a depth ends the last of them
};

}  // namespace gns
