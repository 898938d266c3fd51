#pragma once

#include <string>

namespace gns {

/// What --help prints: usage, options, exit codes, variables and examples, in 80 columns.
std::string Help_text(const std::string& prog_name);

}  // namespace gns
