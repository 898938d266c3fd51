#pragma once

#include <string>

#include "engine/Run_parameters.h"

namespace gns {

/// True if the switches of a run go together. Every finding is appended to `errors`.
/// `undirected_declared` tells that the caller asked for the undirected method by name.
bool Check_switches(bool use_time_limit, double time_limit, bool use_lower_threshold,
                    bool use_upper_threshold, double lower_threshold, double upper_threshold,
                    bool directed, bool use_intensity, bool undirected_declared,
                    std::string& errors);

/// Refuses parameters that no run takes, before it has written anything: those that
/// Check_switches() finds fault with, a threshold that isn't a number, and a single k too small for
/// the intensity method. Throws Xerror_msg with all findings.
void Refuse_bad_parameters(const Run_parameters& parameters);

}  // namespace gns
