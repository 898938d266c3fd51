#include "foundation/text/Shown_text.h"
#include "packaging/Completion_parts.h"
#include "packaging/Completions.h"

namespace gns {

namespace {

using Argument = Option::Argument;

constexpr std::string_view directories = "'(__fish_complete_directories)'";

/// The arguments with which fish is told of an argument.
std::string Fish_argument(const Option& option) {
  switch (option.kind) {
    case Argument::none:
      return "";
    case Argument::file:
      return " -r -F";
    case Argument::directory:
      return std::string(" -x -a ").append(directories);
    case Argument::words:
      return (option.needs_argument ? " -x -a '" : " -a '") + Choices_of(option) + "'";
    case Argument::formats:
      return " -x -a '(__vorlane_list " + Choices_of(option) + ")'";
    default:
      return " -x";
  }
}

/// What is offered on a condition.
std::string Offer(const std::string& condition, const std::string& offer) {
  return "complete -c vorlane -n '" + condition + "' " + offer + "\n";
}

std::string Meaning(std::string_view summary) { return " -d " + Shell_word(Headline(summary)); }

std::string Offer_words(const std::string& condition) {
  std::string text;
  for (const Word& word : All_words())
    text += Offer(condition, "-a " + std::string(word.word) + Meaning(word.summary));
  return text;
}

/// True as long as something is offered for the arguments of a word.
std::string Arguments_are_due(const Word& word) {
  const std::string name(word.word);
  if (word.of_kind == Word::any) return "__vorlane_behind " + name;
  const std::string taking = Names_of(word.options, " ", Takes_next_word);
  return "__vorlane_awaits " + name + " " + std::to_string(word.of_kind) +
         (taking.empty() ? "" : " " + taking);
}

/// All that is offered behind a word.
std::string Offers_behind(const Word& word) {
  std::string text;
  for (const Option& option : Options_behind(word)) {
    const std::string term = option.Is_long() ? "-l " + std::string(option.word.substr(2))
                                              : "-s " + std::string(option.word.substr(1));
    text += Offer("__vorlane_behind " + std::string(word.word),
                  term + Fish_argument(option) + Meaning(option.summary));
  }
  if (!word.choices.front().empty())
    text += Offer(Arguments_are_due(word), "-a '" + Choices_of(word) + "'");
  else if (word.kind == Argument::words)
    text += Offer_words(Arguments_are_due(word));
  if (word.kind == Argument::directory)
    text += Offer(Arguments_are_due(word), std::string("-a ").append(directories));
  return text;
}

constexpr std::string_view fish_script = R"(complete -c vorlane -f

# True where nothing stands yet.
function __vorlane_at_start
    test (count (commandline -opc)) -eq 1
end

# True behind a word. Where none stands it is as behind "run".
function __vorlane_behind
    set -l words (commandline -opc)
    contains -- "$words[2]" @words@; or set words[2] run
    test $words[2] = $argv[1]
end

# True behind a word that has got fewer arguments than that; the rest are options that take the next
# word.
function __vorlane_awaits
    __vorlane_behind $argv[1]; or return
    set -l words (commandline -opc)
    set -l arguments
    set -l is_taken no
    for word in $words[3..]
        if test $is_taken = yes
            set is_taken no
        else if contains -- $word $argv[3..]
            set is_taken yes
        else if not string match -q -- '-?*' $word
            set -a arguments $word
        end
    end
    test (count $arguments) -lt $argv[2]
end

# Puts what is typed of a list, up to its last comma, in front of each word.
function __vorlane_list
    set -l typed (commandline -ct | string replace -r '^--[^=]*=' '')
    set -l begun (string replace -r '[^,]*$' '' -- "$typed")
    printf '%s\n' $begun$argv
end

@at start@@behind words@)";

}  // namespace

std::string Fish_completion() {
  std::string behind_words;
  for (const Word& word : All_words()) behind_words += Offers_behind(word);
  return Filled(std::string(completion_head).append(fish_script),
                {{"words", Names_of_words(" ")},
                 {"at start", Offer_words("__vorlane_at_start")},
                 {"behind words", behind_words}});
}

}  // namespace gns
