#pragma once

#include <string>

namespace gns {

/// Scripts that complete a command line of the program: options, files and directories where an
/// option takes them, words that an option knows. Each stands by itself and needs nothing but its
/// shell.
std::string Bash_completion();
std::string Zsh_completion();
std::string Fish_completion();

}  // namespace gns
