#pragma once

#include <string>
#include <vector>

#include "cli/options/Long_argument.h"
#include "export/Formats.h"

namespace gns {

/// What is to come of a run beside its directory.
struct Output_wishes {
  bool json = false;  ///< standard output gets the figures as JSON, and nothing else
  std::vector<const vorlane::exporting::Format*> formats;  ///< exports
  std::string report;  ///< the file of a page; empty if there is to be none
};

/// The formats of a list of names with commas. Throws Xerror_msg for one that there isn't.
std::vector<const vorlane::exporting::Format*> Formats_in(std::string_view names);

/// Takes `--export` or `--report`; false if the option is another. Throws as Formats_in().
bool Take_output_option(const Long_argument& given, Output_wishes& wishes);

}  // namespace gns
