#pragma once

#include "cli/options/Progress_option.h"

namespace gns {

enum class Exit_code {
  finished = 0,     ///< also help and version
  run_failed = 1,   ///< or some file could not be written
  wrong_usage = 2,  ///< the usage has been printed
  stopped = 130     ///< by SIGINT or SIGTERM
};

/// Does what a command line asks for. The message of the run and a table of what was found go to
/// standard output; what went wrong, and where the input or a switch can't be meant, to standard
/// error.
Exit_code Run_program(int argc, const char* const* argv, const Progress_option& progress);

}  // namespace gns
