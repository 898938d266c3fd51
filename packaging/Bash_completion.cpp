#include <string_view>
#include <vector>

#include "packaging/Completion_parts.h"
#include "packaging/Completions.h"

namespace gns {

namespace {

using Argument = Option::Argument;

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
  std::string text = std::string(completion_head).append(bash_start).append(cases);
  text += "  esac\n  local word left=(" + Joined(often, " ");
  text += ") given=\" ${COMP_WORDS[*]:1:COMP_CWORD-1} \"\n  for word in " + Joined(once, " ");
  text.append(bash_middle).append("    ").append(Joined(open, " | "));
  return text.append(bash_end);
}

}  // namespace gns
