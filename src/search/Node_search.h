#pragma once

#include <span>

#include "graph/Node_set.h"
#include "search/Attempt.h"
#include "search/Clique_vector.h"
#include "search/Search_range.h"

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

/// A search that can be shared at a single node, too.
class Sliced_node_search : public Node_search {
 public:
  /// Appends those cliques of Find() that a slice of the walk finds, in an order for Join().
  virtual void Find_slice(Node_index node, const Walk_slice& slice, Clique_vector& cliques) = 0;

  /// Appends what all slices of `node` have found, just as Find() does. The same nodes must have
  /// finished as for these.
  virtual void Join(Node_index node, std::span<const Clique_vector* const> slices,
                    Clique_vector& cliques) = 0;
};

}  // namespace gns
