#pragma once

/// The command line in one header: the operations by which the program takes its switches and reads
/// its links, for other programs, which link vorlane_cli.
///
/// Process_input() is the one to begin with.

#include "cli/Process_input.h"
#include "cli/options/Parameters.h"
#include "cli/options/Switches.h"
#include "cli/options/Usage.h"
#include "cli/options/gmap.h"
