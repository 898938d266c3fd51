#pragma once

#include <array>
#include <limits>
#include <span>
#include <string_view>

#include "cli/options/Option_table.h"

namespace gns {

/// A word that may stand behind the program's name and tells it to do something other than a run.
/// Texts as in the table of options.
struct Word {
  static constexpr std::size_t any = std::numeric_limits<std::size_t>::max();

  std::string_view word;
  std::string_view arguments;    ///< what follows, in a usage: "DIR NODE..."
  std::string_view summary;      ///< no sentence, a line
  std::string_view description;  ///< sentences
  std::size_t least_arguments = 1;
  std::size_t most_arguments = 1;
  std::span<const Option> options = {};  ///< each that has an argument needs it
  /// What the first arguments are, and how many of them; `words` are those of this list, or the
  /// choices.
  Option::Argument kind = Option::Argument::directory;
  std::size_t of_kind = 1;
  std::array<std::string_view, 8> choices = {};
  bool takes_switches = false;  ///< options that it doesn't have are arguments, for a run's reader
};

/// The one list of all words.
std::span<const Word> All_words();

/// The word of this name; null if there is none.
const Word* Word_of(std::string_view name);

}  // namespace gns
