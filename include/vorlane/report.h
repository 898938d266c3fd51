#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "vorlane/control.h"
#include "vorlane/results.h"

namespace vorlane {

struct Report_options {
  std::string title = "Network";
  std::optional<std::uint32_t> k;  ///< what is shown first; without, the recommended one
  bool overwrites = true;          ///< whether a file that is there may be replaced
};

/// Writes results as one html page that needs nothing else: communities at every k as pictures and
/// tables. The same results give the same page, in seconds for 100,000 nodes. Throws an Error of
/// kind `output` if it can't be written, `parameters` for a k that there isn't, and as Results do.
VORLANE_API void Write_report(const Results& results, const std::string& path,
                              const Report_options& options = {}, const Control& control = {});

/// Pictures for print: the communities at all k, one inside another; at one k the network, or its
/// communities if it has many nodes; and of one k the sizes, memberships, overlaps and degrees.
enum class Figure { tree, graph, distributions };

/// A picture as a whole SVG document, readable in black and white. Throws as Write_report().
VORLANE_API std::string Figure_in_svg(const Results& results, Figure figure,
                                      const Report_options& options = {},
                                      const Control& control = {});

}  // namespace vorlane
