#pragma once

#include <string>

namespace gns::parts {

/// Writes the scripts by which Slurm does the run in parts that is planned in the folder `work`: a
/// batch script for each step, and submit.sh, which submits what is left to do. `program` is the
/// path of the program on all nodes. Yields the path of submit.sh. Throws Xerror_msg if they can't
/// be written, and for a path that Slurm would take for another one.
std::string Write_slurm_scripts(const std::string& work, const std::string& program);

}  // namespace gns::parts
