#pragma once

#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "cli/options/Word_table.h"

namespace gns {

/// What follows a word on the command line.
struct Word_line {
  std::vector<std::string> arguments;
  std::map<std::string, std::string, std::less<>> options;  ///< with their dashes; empty: no value
  bool help_asked = false;  ///< by `--help`; nothing behind that was looked at

  [[nodiscard]] bool Has(std::string_view option) const { return options.contains(option); }
  /// Empty without the option.
  [[nodiscard]] std::string Value(std::string_view option) const {
    const auto found = options.find(option);
    return found == options.end() ? std::string() : found->second;
  }
};

/// Takes it apart; an option's argument may follow it as the next word or behind "=", and behind
/// "--" there are no options. Every word takes `--help`, which asks for what `Help_on` tells.
/// Throws Xerror_msg, with the usage of the word, for an option that it doesn't have, and for too
/// few or too many arguments.
Word_line Read_word_line(const Word& word, const std::vector<std::string>& words);

/// "vorlane WORD ARGUMENTS", and its options if it has some.
std::string Usage_of(const Word& word);

/// All about a word, for people.
std::string Help_on(const Word& word);

}  // namespace gns
