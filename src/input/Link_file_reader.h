#pragma once

#include <string>
#include <string_view>

#include "foundation/io/Line_reader.h"
#include "graph/Link_map.h"
#include "input/Link_file_check.h"
#include "input/Link_intake.h"

namespace gns {

/// A link file holds one link per line: two names and, where weights matter, a number, separated by
/// white space; what follows is ignored. Blanks and tabs at both ends of a line are cut; then lines
/// that are empty, begin with "#" or hold one character are skipped, and so are links of a node
/// with itself. Both readers throw Xep_file_not_found, or Xep_wrong_line with the cut line and its
/// place where a field is missing or the weight is no number. A `check`, if there is one, watches;
/// then they also throw Xno_link_file, with the links left alone, where the file is no text.

/// What the place of a wrong line says was expected.
constexpr std::string_view expected_second_name = "a second name";
constexpr std::string_view expected_weight = "a number as weight";

/// Reads names and weights. The weights of a repeated (first, second) add up; a line whose own
/// weight is outside the open interval is dropped.
void Read_weighted_links(const std::string& file_name, Link_map& links, bool use_lower_threshold,
                         double lower_threshold, bool use_upper_threshold, double upper_threshold,
                         Link_file_check* check = nullptr);

/// Reads names only; every weight is 0.0.
void Read_unw_links(const std::string& file_name, Link_map& links,
                    Link_file_check* check = nullptr);

/// The same of a file that is being read already, from its front on; messages call it `file_name`.
void Read_link_lines(Line_reader& reader, const std::string& file_name, const Link_rule& rule,
                     Link_map& links, Link_file_check* check);

}  // namespace gns
