#pragma once

#include "cli/options/Output_options.h"
#include "cli/options/Program_facts.h"
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

/// Does what a command line asks for, without its long words. The message of the run and a table of
/// what was found go to standard output; what went wrong, and where the input or a switch can't be
/// meant, to standard error.
Exit_code Run_program(int argc, const char* const* argv, const Long_wishes& wishes);

}  // namespace gns
