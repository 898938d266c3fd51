#include "foundation/text/Shown_text.h"
#include "packaging/Completion_parts.h"
#include "packaging/Completions.h"

namespace gns {

namespace {

using Argument = Option::Argument;

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

}  // namespace

std::string Fish_completion() {
  std::string text = std::string(completion_head) + "complete -c vorlane -f\n";
  for (const Option& option : All_options())
    text += "complete -c vorlane " +
            (option.Is_long() ? "-l " + std::string(option.word.substr(2))
                              : "-s " + std::string(option.word.substr(1))) +
            Fish_argument(option) + " -d " + Shell_word(Headline(option)) + "\n";
  return text;
}

}  // namespace gns
