#pragma once

#include <cstddef>
#include <span>

#include "formats/Input_wishes.h"

namespace gns {

/// Reads the option at the front of the words if it is one of those about the input: `--format`,
/// `--columns` or `--blanks`, with the argument behind "=" or as the next word. Yields how many
/// words it took, 0 if it is none of them. Throws Xerror_msg for an argument that is missing or
/// can't be taken.
std::size_t Read_input_option(std::span<const char* const> words, Input_wishes& wishes);

}  // namespace gns
