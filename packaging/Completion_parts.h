#pragma once

#include <functional>
#include <initializer_list>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "cli/options/Option_table.h"
#include "cli/options/Word_table.h"

namespace gns {

/// What the completions of all shells have in common.

/// Begins each script, as a comment.
constexpr std::string_view completion_head =
    "# Completion of vorlane for this shell, made from the tables of its options and words.\n\n";

/// Whether behind the word stands what stands behind none.
bool Is_of_runs(const Word& word);

/// The options that may stand behind a word.
std::span<const Option> Options_behind(const Word& word);

/// Whether the next word is always the argument of an option.
bool Takes_next_word(const Option& option);

/// A summary up to where it goes into details.
std::string Headline(std::string_view summary);

/// Words, joined.
std::string Joined(const std::vector<std::string_view>& words, std::string_view between);

/// The names of the words, or of the options of a list that `holds` is true for, joined.
std::string Names_of_words(std::string_view between);
std::string Names_of(std::span<const Option> options, std::string_view between,
                     const std::function<bool(const Option&)>& holds);

/// A script in which each `@name@` has become what goes by that name.
std::string Filled(std::string script,
                   std::initializer_list<std::pair<std::string_view, std::string>> parts);

/// The arguments that an option offers, or a word as its first one, with blanks between them.
std::string Choices_of(const Option& option);
std::string Choices_of(const Word& word);

}  // namespace gns
