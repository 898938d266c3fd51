#pragma once

#include <string_view>

namespace gns {

/// A variable of the environment; empty if it isn't set. Valid until somebody changes it.
std::string_view Environment_variable(const char* name);

}  // namespace gns
