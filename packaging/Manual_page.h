#pragma once

#include <string>

namespace gns {

/// The manual page of the program for section 1, in the man language.
std::string Manual_page();

}  // namespace gns
