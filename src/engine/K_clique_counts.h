#pragma once

#include <cstdint>
#include <map>
#include <utility>

#include "graph/Node_names.h"
#include "search/Clique_vector.h"

namespace gns {

/// How many subsets of k nodes the cliques have at most, and how long the names of their members
/// are, each with a blank. A clique shares nodes with one before it, and the subsets of these have
/// been counted there. No figure exceeds `most`, which stands for more.
class K_clique_counts {
 public:
  static constexpr double most = 1e18;

  K_clique_counts(const Clique_vector& cliques, const Node_names& node_names);

  struct Figures {
    double k_cliques = 0.0;
    double name_bytes = 0.0;
  };
  [[nodiscard]] Figures At(std::uint32_t k) const;

 private:
  /// Of all cliques of one size that share as many nodes.
  struct Kind {
    double cliques = 0.0;
    double name_bytes = 0.0;
    double shared_bytes = 0.0;
  };
  std::map<std::pair<std::size_t, std::size_t>, Kind> kinds_;  ///< by nodes and shared nodes
};

}  // namespace gns
