#pragma once

#include <string>

namespace gns {

/// Throws Xerror_msg if results at `output_dir` would take the place of the input file: if the
/// file, under whatever name, is the path itself, a part of it, or the mark of an unfinished run
/// beside it.
void Refuse_own_input(const std::string& input_file, const std::string& output_dir);

}  // namespace gns
