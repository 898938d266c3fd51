#pragma once

#include "cli/options/Long_argument.h"

namespace gns {

/// Takes `--jobs`, the number of cores that a run uses; false if the option is another. 0 stands
/// for those at hand. Throws Xerror_msg for what is no number of cores.
bool Take_jobs_option(const Long_argument& given, unsigned& jobs);

}  // namespace gns
