#pragma once

#include <string>

namespace gns {

/// Throws Xerror_msg if `output_dir` is the input file, under whatever name: the file would be
/// moved aside for the results.
void Refuse_own_input(const std::string& input_file, const std::string& output_dir);

}  // namespace gns
