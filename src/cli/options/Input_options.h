#pragma once

#include "cli/options/Long_argument.h"
#include "formats/Input_wishes.h"

namespace gns {

/// Takes `--format`, `--columns` or `--blanks`; false if the option is another. Throws Xerror_msg
/// for an argument that can't be taken.
bool Take_input_option(const Long_argument& given, Input_wishes& wishes);

}  // namespace gns
