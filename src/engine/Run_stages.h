#pragma once

#include <string>

#include "engine/Run_parameters.h"
#include "engine/Run_summary.h"
#include "graph/Link_map.h"

namespace gns {

/// What a run with links already read starts from.
struct Run_start {
  Run_parameters parameters;
  bool weighted = false;   ///< the links were read with weights
  std::string com_flag;    ///< "directed", "intensity" or empty
  std::string run_header;  ///< complete
};

/// Prepares the results directory, which must be empty or missing. The first write of a run.
void Open_results(const Run_start& start);

/// Everything behind the reading of the links; `links` is emptied on the way. Throws what its
/// stages throw.
void Run_from_links(const Run_start& start, Link_map& links, bool& approximation_needed,
                    Run_summary& summary);

}  // namespace gns
