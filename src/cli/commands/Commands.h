#pragma once

#include <string>
#include <vector>

#include "cli/options/Program_facts.h"
#include "cli/options/Word_table.h"

namespace gns {

/// Does what a word of the program tells, other than `run`, with the words behind it. Prints the
/// answer; what is wrong goes to standard error. Never throws but for memory.
Exit_code Do_word(const Word& word, const std::vector<std::string>& words);

}  // namespace gns
