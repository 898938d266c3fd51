#pragma once

#include <string>

#include "foundation/io/Line_reader.h"
#include "input/Link_intake.h"

namespace gns {

/// Reads a graph in METIS' form: a line for each node with its neighbours, from 1, and perhaps
/// sizes, weights of the node and weights of the links, as the first line tells. Each link stands
/// at both of its nodes and is taken once, or in both directions where the run is directed. Throws
/// Xep_wrong_line with the place of what can't be read. Polls as a long stage does.
void Read_metis(Line_reader& reader, bool directed, const std::string& file, Link_intake& intake);

}  // namespace gns
