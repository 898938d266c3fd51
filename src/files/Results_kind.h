#pragma once

#include <optional>
#include <string>

#include "results/Method.h"

namespace gns {

/// What a results directory tells about the run that left it.
struct Results_kind {
  Method method = Method::undirected;
  bool weighted = false;  ///< the links stand there with their weights
};

/// Nothing if it is no results directory: it has no input_params.txt. Throws Xerror_msg if a file
/// can't be read.
std::optional<Results_kind> Kind_of_results(const std::string& results_dir);

}  // namespace gns
