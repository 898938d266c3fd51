#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "vorlane/control.h"
#include "vorlane/results.h"

namespace vorlane {

struct Report_options {
  std::string title = "Network";  ///< what the network is called
  /// The k that is shown first, one of Results::Ks(); without it, the recommended one.
  std::optional<std::uint32_t> k;
  bool overwrites = true;  ///< whether a file that is there may be replaced
};

/// Writes results as one html page that needs no other file and no net: communities at every k as
/// pictures and tables. The same results give the same page. The file appears when it is whole.
/// Takes seconds for 100,000 nodes; may be stopped. Throws an Error of kind `output` if the file
/// can't be written, of kind `parameters` for a k that there isn't, and as Results do.
VORLANE_API void Write_report(const Results& results, const std::string& path,
                              const Report_options& options = {}, const Control& control = {});

/// Pictures for print.
enum class Figure {
  tree,          ///< the communities at all k, one inside another
  graph,         ///< the network at a k, or its communities if it has many nodes
  distributions  ///< of a k: sizes, memberships, overlaps, degrees
};

/// A picture as a whole SVG document, readable in black and white; laid out as in the page. Throws
/// as Write_report().
VORLANE_API std::string Figure_in_svg(const Results& results, Figure figure,
                                      const Report_options& options = {},
                                      const Control& control = {});

}  // namespace vorlane
