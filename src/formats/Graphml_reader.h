#pragma once

#include <string>

#include "formats/Input_wishes.h"
#include "formats/Name_rule.h"
#include "foundation/io/Line_reader.h"
#include "input/Link_file_check.h"
#include "input/Link_intake.h"

namespace gns {

/// Reads the links of a GraphML file, block by block. Nodes are called by their attribute "name",
/// else by "label", else by their identifiers; weights are the attribute "weight" of edges. Throws
/// Xep_wrong_line with the place of what can't be read, and Xerror_msg where this program was built
/// without expat. Polls as a long stage does.
void Read_graphml(Line_reader& reader, const Input_wishes& wishes, Name_rule& names,
                  const std::string& file, Link_file_check& check, Link_intake& intake);

}  // namespace gns
