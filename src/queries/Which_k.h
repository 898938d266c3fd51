#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "queries/Summary.h"

namespace vorlane::queries {

/// One k out of one of several results, and why.
struct Recommendation {
  std::size_t result = 0;  ///< position among the results
  Level_summary level;
  std::string reason;  ///< a sentence
};

/// The classic choice for this method (G. Palla, I. Derényi, I. Farkas, T. Vicsek, Nature 435,
/// 2005): the most that can be covered before a giant community swallows the others, which is where
/// the largest is no more than about twice the second. Among all levels of all results that pass,
/// the one that covers the largest share of the nodes, the greater k of equal ones; if none passes,
/// the one in which the largest community outgrows the second the least. Nothing if there are no
/// communities.
///
/// It sees sizes only: what the communities mean, and whether a finer or a coarser view serves a
/// question better, is for people to say.
std::optional<Recommendation> Which_k(const std::vector<Summary>& results);

}  // namespace vorlane::queries
