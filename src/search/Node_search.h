#pragma once

#include "graph/Node_set.h"
#include "search/Attempt.h"
#include "search/Clique_vector.h"

namespace gns {

/// What differs between the searches: how the cliques of one node are found.
class Node_search {
 public:
  virtual ~Node_search() = default;

  /// Appends to `cliques` the cliques that hold `node` and otherwise only nodes not yet finished,
  /// as far as no clique with a finished node contains them. Ends early where the attempt runs
  /// over.
  virtual void Find(Node_index node, Attempt& attempt, Clique_vector& cliques) = 0;

  /// Takes a node whose cliques are all found out of the graph.
  virtual void Finish(Node_index node) = 0;
};

}  // namespace gns
