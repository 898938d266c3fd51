#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

#include "queries/Shared_nodes.h"
#include "vorlane/results.h"

namespace vorlane::queries {

/// What became of a community between two results.
enum class Fate {
  kept,     ///< the same nodes
  grown,    ///< more nodes
  shrunk,   ///< fewer nodes
  changed,  ///< as many nodes, others
  merged,   ///< most of it lies in one that another community has become
  split,    ///< it is most of a part of one that has become another community
  died,
  born
};

/// A community with what it was or has become.
struct Change {
  Fate fate = Fate::kept;
  std::optional<std::uint32_t> before;  ///< its number, or that of the one that it comes from
  std::optional<std::uint32_t> after;   ///< its number, or that of the one that it went into
  std::size_t size_before = 0;          ///< of that community; 0 if there is none
  std::size_t size_after = 0;
  double jaccard = 0.0;  ///< nodes in both over nodes in either
};

/// The differences between the communities of two results at one k.
struct Level_diff {
  std::uint32_t k = 0;
  std::vector<Change> changes;  ///< Changes_between()
  double omega = 1.0;           ///< Omega_index()
  double nmi = 1.0;             ///< Overlapping_nmi()
};

/// What became of the communities of the first cover, in their order, then each one of the second
/// that was born or split off. Two communities are the same one if each is the likest to the other,
/// with a Jaccard index of at least 0.3 (as D. Greene, D. Doyle, P. Cunningham, ASONAM 2010, follow
/// communities in time).
std::vector<Change> Changes_between(const Covers& covers);

/// Compares by the names of nodes, at each k that either has, k descending, or at one. The
/// figures are over the nodes of both networks. A level that one of the results doesn't have has no
/// communities. Throws as Results::Communities_at().
std::vector<Level_diff> Diff_of(const Results& first, const Results& second,
                                std::optional<std::uint32_t> k = std::nullopt);

}  // namespace vorlane::queries
