#pragma once

#include <string>

namespace gns {

/// The table of all options for README.md, in Markdown.
std::string Readme_table();

}  // namespace gns
