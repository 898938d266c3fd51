#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "cli/options/Option_table.h"

namespace gns {

/// What the completions of all shells have in common.

/// Begins each script, as a comment.
constexpr std::string_view completion_head =
    "# Completion of vorlane for this shell, made from the table of its options.\n\n";

/// The summary up to where it goes into details.
std::string Headline(const Option& option);

/// Words, joined.
std::string Joined(const std::vector<std::string_view>& words, std::string_view between);

/// The arguments that an option offers, with blanks between them.
std::string Choices_of(const Option& option);

}  // namespace gns
