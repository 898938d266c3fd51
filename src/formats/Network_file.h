#pragma once

#include <string>

#include "formats/Input_wishes.h"
#include "graph/Link_map.h"
#include "input/Link_file_check.h"
#include "input/Link_intake.h"

namespace gns {

/// Reads the links of a file in any of the formats, compressed or not; the path "-" is standard
/// input. Plain link files mean what they do for Link_file_reader. `check` is told what can't be
/// meant as it stands, and gets the counts. Throws Xep_file_not_found, Xno_link_file,
/// Xep_wrong_line with the place of what can't be read, and Xerror_msg for damaged data and for
/// what this program was built without. Polls as a long stage does.
void Read_network_file(const std::string& path, const Input_wishes& wishes, const Link_rule& rule,
                       Link_map& links, Link_file_check& check);

}  // namespace gns
