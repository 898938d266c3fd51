#pragma once

/// The command line in one header: the operations by which the program takes its switches and reads
/// its links, for other programs, which link vorlane_cli.
///
/// Process_input() is the one to begin with.

#include "cli/Parameters.h"
#include "cli/Process_input.h"
#include "cli/Switches.h"
#include "cli/Usage.h"
#include "cli/gmap.h"
