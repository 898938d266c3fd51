#pragma once

#include <cstddef>
#include <optional>
#include <vector>

#include "vorlane/results.h"

namespace vorlane::queries {

/// A community at one k with its parent: the community at the next lower k of the results that
/// holds it.
struct Tree_node {
  Place place;
  std::optional<std::size_t> parent;  ///< its number at the next lower k
};

/// The communities of all k, k ascending, so that parents come first.
///
/// Every community at k + 1 lies in exactly one at k: the one that has its cliques. With the
/// intensity method, where a k-clique may be too weak though a larger one around it is strong
/// enough, it may lie in none; then its parent is the smallest community, the first of equal ones,
/// that has all its nodes, or none. Throws as Results::At().
std::vector<Tree_node> Tree_of(const Results& results);

}  // namespace vorlane::queries
