#pragma once

#include <vector>

#include "search/Attempt.h"
#include "search/Local_graph.h"
#include "search/Search_range.h"
#include "search/Walk_levels.h"

namespace gns {

/// Finds all maximal cliques of a local graph that hold the node in hand and two candidates or
/// more, as far as no excluded node can join them. In a directed graph a clique is a set of nodes
/// that are all linked, with no cycle of one-way links.
///
/// Enumeration with a pivot and an excluded set on bit rows (E. Tomita, A. Tanaka, H. Takahashi,
/// Theoretical Computer Science 363, 2006, for the pivot; D. Eppstein, M. Löffler, D. Strash, ISAAC
/// 2010, for the outer order). Of the sets that a pivot can't join, each holds a candidate that is
/// not linked to it or, in a directed graph, one of those that a cycle through the pivot needs: one
/// branch for each of these is enough. Worst case 3^(n/3) for n candidates of an undirected graph;
/// the walk has a stack of its own.
class Clique_walk {
 public:
  /// Cliques of fewer nodes than `least_size`, the node in hand included, are left out, and the
  /// walk doesn't go where there can't be others.
  explicit Clique_walk(std::size_t least_size = 3) : least_size_(least_size) {}

  /// Replaces `found` by one row of local.words words per clique, in no particular order. Where the
  /// attempt runs over, the cliques found until then are a part of them, and maximal all the same.
  /// A slice of the walk finds some of them; each is found by one of the slices.
  void Find(const Local_graph& local, Attempt& attempt, std::vector<Bit_word>& found,
            const Walk_slice& slice = {});

 private:
  std::size_t least_size_;
  Walk_memory memory_;
};

}  // namespace gns
