#pragma once

#include <string>

#include "foundation/io/Line_reader.h"
#include "input/Link_intake.h"

namespace gns {

/// Reads the entries of a sparse square matrix in MatrixMarket's form as links from the node of the
/// row to that of the column; nodes are called by their numbers. An entry of a symmetric matrix
/// stands for two, which differ where the run is directed. The first line, which tells the kind,
/// may be missing: a general matrix. Throws Xep_wrong_line with the place of what can't be read.
/// Polls as a long stage does.
void Read_matrix(Line_reader& reader, bool directed, const std::string& file, Link_intake& intake);

}  // namespace gns
