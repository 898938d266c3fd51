#pragma once

#include <string_view>

#include "foundation/io/Line_reader.h"
#include "foundation/text/Text_fields.h"

namespace gns {

/// Takes the next line that holds something: lines are cut by blanks and tabs at both ends, and
/// skipped if they are empty then, begin with "#" or hold one character. False at the end. `line`
/// is the whole line.
inline bool Next_cut_line(Line_reader& reader, std::string_view& cut_line, std::string_view& line) {
  while (reader.Next(line)) {
    cut_line = Trimmed(line, " \t");
    if (cut_line.size() > 1 && cut_line.front() != '#') return true;
  }
  return false;
}

inline bool Next_cut_line(Line_reader& reader, std::string_view& cut_line) {
  std::string_view line;
  return Next_cut_line(reader, cut_line, line);
}

}  // namespace gns
