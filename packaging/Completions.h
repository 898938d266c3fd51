#pragma once

#include <string>

namespace gns {

/// Scripts that complete a command line of the program: the words that may stand first, the options
/// behind each, files and directories where a word or an option takes them, and what else an option
/// knows. Each stands by itself and needs nothing but its shell.
std::string Bash_completion();
std::string Zsh_completion();
std::string Fish_completion();

}  // namespace gns
