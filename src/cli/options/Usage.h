#pragma once

#include <string>

namespace gns {

/// What the switches say about themselves, on standard output.

/// The banner.
void Print_copyright();

/// The banner, what is wrong with the command line, and the short usage.
void Print_usage(const std::string& prog_name, const std::string& errors);

/// The long help and, behind it, the banner.
void Print_detailed_usage(const std::string& prog_name);

/// Name and version.
void Print_version();

}  // namespace gns
