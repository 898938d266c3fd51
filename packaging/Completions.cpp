#include "packaging/Completions.h"

#include <string_view>
#include <vector>

#include "cli/options/Marked_text.h"
#include "cli/options/Option_table.h"
#include "foundation/text/Shown_text.h"

namespace gns {

namespace {

using Argument = Option::Argument;

constexpr std::string_view first_line =
    "# Completion of vorlane for this shell, made from the table of its options.\n\n";

/// The summary up to where it goes into details.
std::string Headline(const Option& option) {
  return Without_marks(option.summary.substr(0, option.summary.find_first_of(":;")));
}

/// Words, joined.
std::string Joined(const std::vector<std::string_view>& words, std::string_view between) {
  std::string text;
  for (const std::string_view word : words) text.append(text.empty() ? "" : between).append(word);
  return text;
}

std::string Choices_of(const Option& option) {
  std::vector<std::string_view> choices;
  for (const std::string_view choice : option.choices)
    if (!choice.empty()) choices.push_back(choice);
  return Joined(choices, " ");
}

/// What bash does behind an option that takes an argument.
std::string Bash_case(const Option& option) {
  const auto offer = [](const std::string& action) {
    return "      mapfile -t COMPREPLY < <(compgen " + action + " -- \"$current\")\n";
  };
  std::string text = "    " + std::string(option.word);
  if (option.needs_argument) text += " | " + std::string(option.word);
  text += option.Is_long() ? "=)\n" : ")\n";
  if (option.kind == Argument::file)
    text += offer("-f") + "      compopt -o filenames -o bashdefault -o default 2>/dev/null\n";
  if (option.kind == Argument::directory)
    text += offer("-d") + "      compopt -o filenames -o dirnames 2>/dev/null\n";
  if (option.kind == Argument::words)
    text += offer("-P \"$prefix\" -W '" + Choices_of(option) + "'");
  return text + "      return ;;\n";
}

/// What zsh is told of one option, as its _arguments takes it.
std::string Zsh_argument(const Option& option) {
  std::string text(option.adds_up ? "*" : "");
  text.append(option.word);
  if (option.Is_long() && !option.argument.empty()) text += option.needs_argument ? "=" : "=-";
  text += "[";
  for (const char letter : Headline(option))
    text.append(letter == '[' || letter == ']' ? "\\" : "").append(1, letter);
  text += "]";
  if (option.argument.empty()) return text;
  text.append(option.Is_long() && !option.needs_argument ? "::" : ":")
      .append(option.argument)
      .append(":");
  switch (option.kind) {
    case Argument::file:
      return text + "_files";
    case Argument::directory:
      return text + "_files -/";
    case Argument::words:
      return text + "(" + Choices_of(option) + ")";
    default:
      return text + " ";
  }
}

/// The arguments with which fish is told of an argument.
std::string Fish_argument(const Option& option) {
  switch (option.kind) {
    case Argument::none:
      return "";
    case Argument::file:
      return " -r -F";
    case Argument::directory:
      return " -x -a '(__fish_complete_directories)'";
    case Argument::words:
      return (option.needs_argument ? " -x -a '" : " -a '") + Choices_of(option) + "'";
    default:
      return " -x";
  }
}

/// What is typed last, and the option that it belongs to. "=" may be a word of its own there.
constexpr std::string_view bash_start = R"(_vorlane() {
  local IFS=$' \t\n' prefix=
  local current=${COMP_WORDS[COMP_CWORD]} before=${COMP_WORDS[COMP_CWORD-1]}
  if [[ $current == = && $before == --* ]]; then
    current= before+==
  elif [[ $before == = && ${COMP_WORDS[COMP_CWORD-2]} == --* ]]; then
    before=${COMP_WORDS[COMP_CWORD-2]}=
  elif [[ $current == --*=* ]]; then
    prefix=${current%%=*}= before=${current%%=*}= current=${current#*=}
  fi
  COMPREPLY=()
  case $before in
)";

/// Offers the options that are left; behind one that may get a "=" comes no blank.
constexpr std::string_view bash_middle = R"(; do
    [[ $given == *" $word "* ]] || left+=("$word")
  done
  mapfile -t COMPREPLY < <(compgen -W "${left[*]}" -- "$current")
  case ${COMPREPLY[*]} in
)";

constexpr std::string_view bash_end = R"() compopt -o nospace 2>/dev/null ;;
  esac
}
complete -F _vorlane vorlane
)";

}  // namespace

std::string Bash_completion() {
  std::vector<std::string_view> once;
  std::vector<std::string_view> often;
  std::vector<std::string_view> open;
  std::string cases;
  for (const Option& option : All_options()) {
    (option.adds_up ? often : once).push_back(option.word);
    if (option.argument.empty()) continue;
    cases += Bash_case(option);
    if (option.Is_long() && !option.needs_argument) open.push_back(option.word);
  }
  std::string text = std::string(first_line).append(bash_start).append(cases);
  text += "  esac\n  local word left=(" + Joined(often, " ");
  text += ") given=\" ${COMP_WORDS[*]:1:COMP_CWORD-1} \"\n  for word in " + Joined(once, " ");
  text.append(bash_middle).append("    ").append(Joined(open, " | "));
  return text.append(bash_end);
}

std::string Zsh_completion() {
  std::string text = "#compdef vorlane\n" + std::string(first_line) + "_arguments";
  for (const Option& option : All_options()) text += " \\\n  " + Shell_word(Zsh_argument(option));
  return text + "\n";
}

std::string Fish_completion() {
  std::string text = std::string(first_line) + "complete -c vorlane -f\n";
  for (const Option& option : All_options())
    text += "complete -c vorlane " +
            (option.Is_long() ? "-l " + std::string(option.word.substr(2))
                              : "-s " + std::string(option.word.substr(1))) +
            Fish_argument(option) + " -d " + Shell_word(Headline(option)) + "\n";
  return text;
}

}  // namespace gns
