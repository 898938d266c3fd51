#pragma once

#include <cstdint>
#include <optional>
#include <ostream>

#include "cli/options/Word_line.h"

namespace gns {

/// The answers to questions about results directories, each on `out`. They throw vorlane::Error,
/// and Xerror_msg for arguments that can't be meant.

void Answer_summary(const Word_line& line, std::ostream& out);
void Answer_which_k(const Word_line& line, std::ostream& out);
void Answer_query(const Word_line& line, std::ostream& out);
void Answer_tree(const Word_line& line, std::ostream& out);
void Answer_diff(const Word_line& line, std::ostream& out);

/// Writes files, and their names on `out`.
void Answer_export(const Word_line& line, std::ostream& out);

/// Writes a page or a picture, and its name on `out`.
void Answer_report(const Word_line& line, std::ostream& out);

/// Does a step of a run in parts, and tells what is done.
void Answer_parts(const Word_line& line, std::ostream& out);

/// The argument of --k, nothing for "all" and without it.
std::optional<std::uint32_t> K_of(const Word_line& line);

}  // namespace gns
