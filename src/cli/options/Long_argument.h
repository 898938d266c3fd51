#pragma once

#include <cstddef>
#include <optional>
#include <span>
#include <string>

#include "cli/options/Option_table.h"

namespace gns {

/// A long option that needs an argument, with that.
struct Long_argument {
  const Option& option;
  std::string argument;
  std::size_t words;  ///< of the command line that it took

  /// Throws Xerror_msg that tells what is wrong with the argument, unless `wrong` is empty.
  void Refuse(const std::string& wrong) const;
};

/// The option at the front of the words if it is a long one that needs an argument, which stands
/// behind "=" or as the next word. Throws Xerror_msg if the argument is missing.
std::optional<Long_argument> Long_argument_at(std::span<const char* const> words);

}  // namespace gns
