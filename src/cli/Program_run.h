#pragma once

#include "cli/options/Long_wishes.h"
#include "cli/options/Program_facts.h"

namespace gns {

/// Does what a command line asks for, without its long words. The message of the run and a table of
/// what was found go to standard output; what went wrong, and where the input or a switch can't be
/// meant, to standard error.
Exit_code Run_program(int argc, const char* const* argv, const Long_wishes& wishes);

}  // namespace gns
