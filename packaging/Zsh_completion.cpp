#include "foundation/text/Shown_text.h"
#include "packaging/Completion_parts.h"
#include "packaging/Completions.h"

namespace gns {

namespace {

using Argument = Option::Argument;

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

}  // namespace

std::string Zsh_completion() {
  std::string text = "#compdef vorlane\n" + std::string(completion_head) + "_arguments";
  for (const Option& option : All_options()) text += " \\\n  " + Shell_word(Zsh_argument(option));
  return text + "\n";
}

}  // namespace gns
