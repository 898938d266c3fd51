#pragma once

#include <string_view>

namespace gns {

/// A variable of the environment; empty if it isn't set. Valid as long as nobody changes the
/// environment, which nothing here does.
std::string_view Environment_variable(const char* name);

}  // namespace gns
