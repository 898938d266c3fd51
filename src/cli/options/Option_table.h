#pragma once

#include <array>
#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace gns {

/// One of the options that the program takes: a switch (one dash and a letter), which the parser
/// reads, or a long word (two dashes), which `main` takes in front of it.
///
/// Texts mark by backquotes what is to be typed.
struct Option {
  /// `formats` are names of formats that can be exported, with commas between them.
  enum class Argument { none, file, directory, number, words, formats };
  enum class Group { files, search, display };

  std::string_view word;      ///< with its dashes
  std::string_view argument;  ///< what the argument is called; empty if the option takes none
  Argument kind = Argument::none;
  Group group = Group::files;
  std::string_view summary;      ///< for tables and completions: no sentence, a line or two
  std::string_view without;      ///< what holds where the option isn't given; may be empty
  std::string_view description;  ///< for the manual: sentences

  /// What people call it, for guesses at a word that there isn't.
  std::array<std::string_view, 3> names = {};
  /// Arguments worth offering, of the kind `words`; of `formats` too, if it isn't all.
  std::array<std::string_view, 8> choices = {};
  bool mandatory = false;
  bool needs_argument = false;  ///< of a long word
  /// Whether each time that it is given counts, and not the last alone.
  bool adds_up = false;

  /// A long word takes its argument behind a "=" and may lack it, unless it needs it; then the next
  /// word will do, too. A switch takes the next word.
  [[nodiscard]] bool Is_long() const { return word.starts_with("--"); }

  /// The option with its argument, as documents write it: "-i FILE", "--progress[=HOW]".
  [[nodiscard]] std::string Form() const;
};

/// The one list of all options, in the order in which documents and guesses take them. An option
/// that is added here stands in the help, the manual, the completions and README; its reader is
/// `Parameters` for a switch, `main` for a long word.
std::span<const Option> All_options();

/// The switch of this word; null if there is none.
const Option* Switch_of(std::string_view word);

/// The long option that a word of the command line gives, alone or with "=" and an argument behind
/// it; null if it gives none.
const Option* Long_option_of(std::string_view word);

/// A group of options, and its title.
struct Option_group {
  Option::Group group;
  std::string_view title;
};

std::span<const Option_group> Option_groups();

}  // namespace gns
