#include <string_view>

#include "packaging/Completion_parts.h"
#include "packaging/Completions.h"

namespace gns {

namespace {

using Argument = Option::Argument;

/// What bash does behind an option of a word that takes an argument.
std::string Case_of(const Word& word, const Option& option) {
  const auto offer = [](const std::string& action) {
    return "      mapfile -t COMPREPLY < <(compgen " + action + " -- \"$current\")\n";
  };
  const std::string before = std::string(word.word).append(" ").append(option.word);
  std::string text = "    '" + before;
  if (option.needs_argument && option.Is_long()) text += "' | '" + before;
  text += option.Is_long() ? "=')\n" : "')\n";
  if (option.kind == Argument::file)
    text += offer("-f") + "      compopt -o filenames -o bashdefault -o default 2>/dev/null\n";
  if (option.kind == Argument::directory)
    text += offer("-d") + "      compopt -o filenames -o dirnames 2>/dev/null\n";
  if (option.kind == Argument::formats)
    text += "      [[ $current == *,* ]] && prefix+=${current%,*}, current=${current##*,}\n";
  if (option.kind == Argument::formats || option.kind == Argument::words)
    text += offer("-P \"$prefix\" -W '" + Choices_of(option) + "'");
  return text + "      return ;;\n";
}

/// What bash knows of a word: its options, which of them take the next word, and what is offered
/// for how many arguments.
std::string Case_of(const Word& word) {
  std::string text = "    " + std::string(word.word) + ")\n";
  const auto once = [](const Option& option) { return !option.adds_up; };
  const auto often = [](const Option& option) { return option.adds_up; };
  const auto list = [&](const std::string& start, const auto& holds, const std::string& end) {
    const std::string names = Names_of(Options_behind(word), " ", holds);
    if (!names.empty()) text += "      " + start + names + end + "\n";
  };
  list("once=(", once, ")");
  list("left=(", often, ")");
  list("takes=' ", Takes_next_word, " '");
  const std::string count = word.of_kind == Word::any ? "COMP_CWORD" : std::to_string(word.of_kind);
  if (word.kind == Argument::directory) text += "      directories=" + count + "\n";
  if (word.kind == Argument::words)
    text += "      words=" + count + " offered=(" + Choices_of(word) + ")\n";
  return text + "      ;;\n";
}

constexpr std::string_view bash_script = R"(_vorlane() {
  # What is typed last, and the option that it belongs to. "=" may be a word of its own there.
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

  # The word in place of options, or how many such words may stand here.
  local word=run words=0 offered=()
  if ((COMP_CWORD == 1)); then
    words=1 offered=(@words@)
  else
    case ${COMP_WORDS[1]} in
      @any word@) word=${COMP_WORDS[1]} ;;
    esac
  fi
  case "$word $before" in
@behind options@  esac

  # The options that are left.
  local option i once=() left=() takes= directories=0 arguments=0
  case $word in
@behind words@  esac
  local given=" ${COMP_WORDS[*]:1:COMP_CWORD-1} "
  for option in "${once[@]}"; do
    [[ $given == *" $option "* ]] || left+=("$option")
  done

  # How many arguments the word has got.
  for ((i = 2; i < COMP_CWORD; i++)); do
    if [[ ${COMP_WORDS[i]} != -?* ]]; then
      ((arguments += 1))
    elif [[ $takes == *" ${COMP_WORDS[i]} "* ]]; then
      [[ ${COMP_WORDS[i + 1]} == = ]] && ((i += 1))
      ((i += 1))
    fi
  done
  ((arguments < words)) && left+=("${offered[@]}")

  # Behind an option that may get a "=" comes no blank.
  mapfile -t COMPREPLY < <(compgen -W "${left[*]}" -- "$current")
  case ${COMPREPLY[*]} in
    @open options@) compopt -o nospace 2>/dev/null ;;
  esac
  if ((arguments < directories)) && [[ $current != -* ]]; then
    mapfile -t -O "${#COMPREPLY[@]}" COMPREPLY < <(compgen -d -- "$current")
    compopt -o filenames -o dirnames 2>/dev/null
  fi
}
complete -F _vorlane vorlane
)";

}  // namespace

std::string Bash_completion() {
  std::string behind_options;
  std::string behind_words;
  for (const Word& word : All_words()) {
    for (const Option& option : Options_behind(word))
      if (!option.argument.empty()) behind_options += Case_of(word, option);
    behind_words += Case_of(word);
  }
  const auto open = [](const Option& option) {
    return option.Is_long() && !option.argument.empty() && !option.needs_argument;
  };
  return Filled(std::string(completion_head).append(bash_script),
                {{"any word", Names_of_words(" | ")},
                 {"behind options", behind_options},
                 {"behind words", behind_words},
                 {"words", Names_of_words(" ")},
                 {"open options", Names_of(All_options(), " | ", open)}});
}

}  // namespace gns
