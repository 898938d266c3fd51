#pragma once

#include "cli/options/Program_facts.h"
#include "cli/options/Progress_option.h"
#include "formats/Input_wishes.h"

namespace gns {

/// Does what a command line asks for; `input` is what it says about the link file in long words.
/// The message of the run and a table of what was found go to standard output; what went wrong, and
/// where the input or a switch can't be meant, to standard error.
Exit_code Run_program(int argc, const char* const* argv, const Progress_option& progress,
                      const Input_wishes& input);

}  // namespace gns
