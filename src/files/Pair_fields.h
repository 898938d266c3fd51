#pragma once

#include <cstdint>
#include <istream>
#include <string>
#include <string_view>
#include <utility>

#include "foundation/Errors.h"
#include "foundation/io/Line_reader.h"
#include "results/Name_pairs.h"

namespace gns {

/// Reads the two fields of a pair as formatted input. Throws Xerror_msg, with the pair unchanged,
/// if one of them can't be read.
std::istream& operator>>(std::istream& stream, std::pair<std::string, std::string>& pair);
std::istream& operator>>(std::istream& stream, std::pair<std::int32_t, std::int32_t>& pair);

/// Reads two white-space-separated fields and ignores what follows. False, with the pair unchanged,
/// if there are fewer. `suspicious` is left alone.
bool Convert_from_string(std::string_view text, std::pair<std::string, std::string>& pair,
                         bool& suspicious);

/// The same fields taken off the front of a text in memory; the names are views of it. False, with
/// nothing changed, where formatted input fails.
bool Extract_pair(std::string_view& text, Name_pairs::value_type& pair);
bool Extract_pair(std::string_view& text, std::pair<std::int32_t, std::int32_t>& pair);

/// Takes lines of two names off what the reader holds, as far as they are plain: Name_list says
/// which are.
void Take_plain_lines(Line_reader& reader, Name_pairs& pairs);

/// What the extractions of a pair throw.
Xerror_msg Failed_pair();

}  // namespace gns
