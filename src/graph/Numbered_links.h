#pragma once

#include <vector>

#include "graph/Link_map.h"
#include "graph/Name_table.h"
#include "graph/Node_set.h"

namespace gns {

/// Collects links between numbers from 1 to a count, in any order, and makes of them the Link_map
/// that they are if each number is written in decimals, or called by a name.
class Numbered_links {
 public:
  /// Weights as of Link_map_builder.
  Numbered_links(Node_index count, bool weighted) : count_(count), weighted_(weighted) {}

  /// Both must be from 1 to the count.
  void Add(Index_pair link, double weight) {
    pairs_.push_back(link);
    if (weighted_) weights_.push_back(weight);
  }

  /// Sorts and folds what was added; the collection is spent. `number_of_name` becomes, for each
  /// name of the map by its place, the number. `called`, unless null, has as many names as there
  /// are numbers: number i is called (*called)[i - 1]. Those of one name stay apart and come in
  /// ascending order. Polls as a long stage does.
  Link_map Build(std::vector<Node_index>& number_of_name, const Name_table* called = nullptr);

 private:
  Node_index count_;
  bool weighted_;
  std::vector<Index_pair> pairs_;
  std::vector<double> weights_;
};

}  // namespace gns
