#pragma once

#include <string>
#include <vector>

namespace gns {

/// The lines of the latest state report that say something: without rulers, blank lines and the
/// blanks around them. None before the first report.
std::vector<std::string> State_lines();

}  // namespace gns
