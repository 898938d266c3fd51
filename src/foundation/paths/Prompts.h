#pragma once

#include <string>
#include <string_view>

namespace gns {

/// The talk of the interactive operations with the user, on standard output and standard input.
/// Whatever isn't an answer, the end of input too, is thrown as `Xerror_msg`: "stopped
/// interactively by user."

/// Tells what an operation has found and asks what to do. Yields the first character that isn't
/// white space; it must be one of `keys`.
char Ask(const std::string& operation, const std::string& finding, std::string_view choices,
         std::string_view keys);

/// Asks for a name or path, a single word.
std::string Ask_name(std::string_view request);

}  // namespace gns
