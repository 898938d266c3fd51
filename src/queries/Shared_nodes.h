#pragma once

#include <algorithm>
#include <cstdint>
#include <vector>

#include "graph/Row_index.h"
#include "vorlane/rows.h"

namespace vorlane::queries {

/// Two covers of the nodes 1 to `node_count`: communities that may overlap and leave nodes out.
struct Covers {
  Node node_count = 0;
  Rows first;
  Rows second;
};

/// The communities of a cover by node.
inline gns::Row_index Holders(Node node_count, const Rows& communities) {
  return {node_count, [&](auto enter) {
            for (std::uint32_t i = 0; i < communities.size(); ++i)
              for (const Node node : communities[i]) enter(node, i);
          }};
}

/// Counts how many nodes sets share with the communities of a cover.
class Shared_nodes {
 public:
  /// `communities` must outlive the object.
  Shared_nodes(Node node_count, const Rows& communities)
      : holders_(Holders(node_count, communities)), shared_(communities.size(), 0) {}

  /// Calls use(community, number of shared nodes) for each community with which `nodes` share some,
  /// in ascending order.
  template <typename Use>
  void For_each(Rows::Row nodes, Use use) {
    met_.clear();
    for (const Node node : nodes)
      for (const std::uint32_t community : holders_[node])
        if (shared_[community]++ == 0) met_.push_back(community);
    std::ranges::sort(met_);
    for (const std::uint32_t community : met_) {
      use(community, shared_[community]);
      shared_[community] = 0;
    }
  }

 private:
  gns::Row_index holders_;
  std::vector<std::uint32_t> shared_;  ///< by community; 0 outside of For_each()
  std::vector<std::uint32_t> met_;
};

}  // namespace vorlane::queries
