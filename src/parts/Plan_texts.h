#pragma once

#include <string>

#include "parts/Clique_part.h"
#include "parts/Graph_part.h"

namespace gns::parts {

/// What the binary parts hold, for people and for those who start parts elsewhere. Nobody in here
/// reads these texts, but all hold them against what they should be: who changes them, by hand or
/// by another plan, means something that would not happen.

/// plan.tsv: a line for each part of the search, with its range, the estimate of its work, the
/// memory that it needs beside the cliques that it finds, and which slice of a node it is.
std::string Plan_text(const Graph_part& graph);
/// levels.tsv: the same for each part of the levels.
std::string Levels_text(const Graph_part& graph, const All_cliques& all);
/// run.json: fingerprint, paths, switches and header.
std::string Run_text(const Graph_part& graph);

}  // namespace gns::parts
