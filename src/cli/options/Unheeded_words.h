#pragma once

#include <string>
#include <vector>

#include "cli/options/gmap.h"

namespace gns {

/// What is to be said of the words of a command line that no run heeds: of unknown switches with
/// the nearest one that there is, and of words behind a switch that doesn't take them.
std::vector<std::string> Unheeded_words(const Switch_map& params);

}  // namespace gns
