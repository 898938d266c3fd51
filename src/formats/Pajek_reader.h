#pragma once

#include <string>

#include "formats/Input_wishes.h"
#include "formats/Name_rule.h"
#include "foundation/io/Line_reader.h"
#include "input/Link_file_check.h"
#include "input/Link_intake.h"

namespace gns {

/// Reads the links of a Pajek network: vertices with labels, then edges or arcs, in lines or in
/// lists; a link without a value has the weight 1. Throws Xep_wrong_line with the place of what
/// can't be read. Polls as a long stage does.
void Read_pajek(Line_reader& reader, const Input_wishes& wishes, Name_rule& names,
                const std::string& file, Link_file_check& check, Link_intake& intake);

}  // namespace gns
