#pragma once

#include <span>
#include <vector>

#include "cli/options/Output_options.h"
#include "cli/options/Progress_option.h"
#include "formats/Input_wishes.h"

namespace gns {

/// What the long words of a command line say about a run.
struct Long_wishes {
  Progress_option progress;
  Input_wishes input;
  Output_wishes output;
  unsigned jobs = 1;  ///< cores to work with
};

/// Takes the long words out of a command line without the program's name, and yields the rest. Ends
/// at one that is answered in place of a run, --help or --version, which then is the last of these.
/// Throws Xerror_msg for one that can't be taken.
std::vector<const char*> Take_long_words(std::span<const char* const> line, Long_wishes& wishes);

}  // namespace gns
