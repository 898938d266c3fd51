#pragma once

#include <span>
#include <string_view>

namespace gns {

/// What help and manual tell of the program beside its options. Texts mark by backquotes what is
/// to be typed.

enum class Exit_code {
  finished = 0,     ///< also help and version
  run_failed = 1,   ///< or some file could not be written
  wrong_usage = 2,  ///< the usage has been printed
  stopped = 130     ///< by SIGINT or SIGTERM
};

struct Exit_meaning {
  Exit_code code;
  std::string_view meaning;
};

/// A variable of the environment.
struct Variable {
  std::string_view name;
  std::string_view meaning;
};

/// A command line without the program's name, and what it does.
struct Example {
  std::string_view arguments;
  std::string_view effect;
};

/// What stands behind the program's name in a usage.
std::string_view Synopsis();

/// What the program is good for, in sentences.
std::string_view Purpose();

std::span<const Exit_meaning> Exit_meanings();
std::span<const Variable> Variables();
std::span<const Example> Examples();

}  // namespace gns
