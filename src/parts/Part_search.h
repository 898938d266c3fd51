#pragma once

#include <deque>
#include <vector>

#include "graph/Named_graph.h"
#include "search/Clique_vector.h"
#include "search/Search_range.h"

namespace gns::parts {

/// Appends the cliques of a range, as a search of all nodes finds them, but for those of a slice,
/// which still have to be joined. Reports and polls; throws Xerror_msg if they are more than can be
/// numbered.
void Search_the_range(const Named_graph& graph, const Search_range& range, Clique_vector& cliques);

/// What was found in ranges, with the slices of a node joined to what a search of the whole finds.
class Joined_ranges {
 public:
  /// `found` has the cliques of each range, one after the other as in a plan; they outlive the
  /// object. Polls.
  Joined_ranges(const Named_graph& graph, const std::vector<Search_range>& ranges,
                const std::vector<const Clique_vector*>& found);

  /// All cliques, in blocks behind each other. What needs no joining is passed on as it is.
  [[nodiscard]] const std::vector<const Clique_vector*>& Blocks() const { return blocks_; }

 private:
  std::deque<Clique_vector> joined_;
  std::vector<const Clique_vector*> blocks_;
};

}  // namespace gns::parts
