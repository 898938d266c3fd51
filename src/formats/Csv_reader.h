#pragma once

#include <string>

#include "formats/Format.h"
#include "formats/Input_wishes.h"
#include "formats/Name_rule.h"
#include "foundation/io/Line_reader.h"
#include "input/Link_intake.h"

namespace gns {

/// Reads links from separated values. Throws Xep_wrong_line with the place of what can't be read.
/// Polls as a long stage does.
void Read_csv(Line_reader& reader, Format format, const Input_wishes& wishes, Name_rule& names,
              const std::string& file, Link_intake& intake);

}  // namespace gns
