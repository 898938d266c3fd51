#pragma once

#include <string_view>

namespace gns {

/// A variable of the environment; empty if it isn't set. Valid throughout, as this program never
/// changes its environment.
std::string_view Environment_variable(const char* name);

}  // namespace gns
