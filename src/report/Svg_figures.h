#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "export/Picture.h"
#include "export/Selection.h"
#include "queries/Forest.h"
#include "vorlane/report.h"

namespace vorlane::report {

/// What the pictures for print are drawn from. Throws as Results do.
struct Drawing {
  Drawing(const Results& results, const Report_options& options);

  std::string title;
  exporting::Selection selection;
  exporting::Picture picture;
  std::optional<std::uint32_t> k;  ///< the shown one; nothing if there are no levels
};

/// A band for each k, the tightest communities on top; each community stands on the one that holds
/// it and is as wide as the number of its nodes. Those too narrow to be seen are one haze.
std::string Tree_in_svg(const Drawing& drawing);

/// The network with pies for nodes of several communities and the numbers of communities, or, if it
/// has too many nodes, the communities as circles, with lines between those that overlap.
std::string Graph_in_svg(const Drawing& drawing);

/// Sizes, memberships, overlaps and degrees on scales of powers of ten.
std::string Distributions_in_svg(const Drawing& drawing);

}  // namespace vorlane::report
