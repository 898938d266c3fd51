#pragma once

#include <string>

namespace gns {

/// How many cores this process may use, 1 or more: the least of those that it may run on, of those
/// that a scheduler gave its job by a variable of the environment (of Slurm, PBS, Grid Engine or
/// LSF), and of the processor time that the control groups around it allow. `root` stands before
/// the paths of the system's files.
unsigned Cores_at_hand(const std::string& root = "");

}  // namespace gns
