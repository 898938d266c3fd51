#pragma once

#include <algorithm>
#include <cstddef>
#include <vector>

#include "Literal_search.h"
#include "search/Left_map.h"

namespace gns::literal {

/// True if one of `sets` holds every member of `set`.
inline bool Lies_inside_one(const Set& set, const std::vector<Set>& sets) {
  return !Mehet_tovabb(sets, set);
}

/// The cliques with core cliques in place of what a search has left, by comparing all with all.
struct Covered_cliques {
  std::vector<Set> core;
  std::vector<Set> cliques;
  std::size_t exact_clique_count = 0;

  Covered_cliques(const Left_map& left, const std::vector<Set>& exact) {
    std::vector<Set> entries;
    for (std::size_t i = 0; i < left.size(); ++i) {
      const Set set = Members(left.neighs[i]);
      if (!Lies_inside_one(set, entries) && !Lies_inside_one(set, exact)) entries.push_back(set);
    }
    for (const Set& entry : entries)
      if (std::ranges::none_of(entries, [&](const Set& other) {
            return other != entry && Lies_inside_one(entry, {other});
          }))
        core.push_back(entry);
    for (const Set& clique : exact)
      if (!Lies_inside_one(clique, core)) cliques.push_back(clique);
    exact_clique_count = cliques.size();
    cliques.insert(cliques.end(), core.begin(), core.end());
  }
};

/// The number of nodes that each two cliques share, where they share any.
inline Matrix Shared_nodes(const std::vector<Set>& cliques) {
  Matrix matrix(cliques.size());
  for (Clique_index i = 0; i < cliques.size(); ++i)
    for (Clique_index j = 0; j < cliques.size(); ++j)
      for (const Node_index node : cliques[i])
        if (cliques[j].contains(node)) ++matrix[i][j];
  return matrix;
}

}  // namespace gns::literal
