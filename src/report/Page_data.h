#pragma once

#include <string>

#include "layout/Network_layout.h"
#include "queries/Forest.h"
#include "vorlane/report.h"

namespace vorlane::report {

/// Of so many communities at each k, the largest, the first of equal ones, the page draws circles.
constexpr std::size_t drawn_at_k = 1500;

/// A network of more nodes is not drawn as a whole, only its communities.
constexpr Node drawn_as_a_whole = 20000;

/// All that a page shows, as bytes. Numbers are those of a Byte_block:
///
///     facts: a text, one object of JSON
///     names: by node, a text
///     links: by node, the other ends, near it; of an undirected link at the smaller end
///     levels: k ascending, how many there are; each of
///         k, communities, exact ones among them
///         by community: nodes; difference to the parent of the community in front, of parents
///             counted from 1 (0: none); the nodes that none of its children has, near the first
///             of the community in front that had such
///         the four distributions (membership, size, overlap, degree), each a count of entries,
///             and by entry the difference of values and the number of times
///     places: by node that is placed, x and y, 16 bits each; in four runs of bytes: high of all x,
///     low of all x,
///         high of all y, low of all y
///     circles: by level, by community that is drawn: x, y and radius in the same way
///
/// Nodes are numbered from 0, those of one community behind those of another, so that what belongs
/// together is near; those of none are last. In a network of more than `drawn_as_a_whole` nodes
/// these have no places and no links.
/// Throws as Results do, and if `options` tells a k that there isn't.
std::string Page_data(const Results& results, const queries::Forest& forest,
                      const layout::Layout& layout, const Report_options& options);

}  // namespace vorlane::report
