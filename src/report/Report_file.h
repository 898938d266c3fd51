#pragma once

#include <string>
#include <string_view>

#include "vorlane/report.h"

namespace vorlane::report {

/// Write_report() under the control at hand.
void Make_report(const Results& results, const std::string& path, const Report_options& options);

/// Figure_in_svg() under the control at hand.
std::string Make_figure(const Results& results, Figure figure, const Report_options& options);

/// Writes a picture to a file, which appears when it is whole. Throws an Error of kind `output`.
void Write_figure(std::string_view picture, const std::string& path, bool overwrites);

}  // namespace vorlane::report
