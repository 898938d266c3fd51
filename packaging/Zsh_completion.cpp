#include "foundation/text/Shown_text.h"
#include "packaging/Completion_parts.h"
#include "packaging/Completions.h"

namespace gns {

namespace {

using Argument = Option::Argument;

/// The words, with what they mean, in the place of an argument.
std::string Words_argument() {
  std::string text = "1:word:((";
  for (const Word& word : All_words())
    text.append(text.ends_with('(') ? "" : " ")
        .append(word.word)
        .append("\\:")
        .append(Shell_word(Headline(word.summary)));
  return text + "))";
}

/// What zsh is told of one option, as its _arguments takes it.
std::string Zsh_argument(const Option& option) {
  std::string text(option.adds_up ? "*" : "");
  text.append(option.word);
  if (option.Is_long() && !option.argument.empty()) text += option.needs_argument ? "=" : "=-";
  text += "[";
  for (const char letter : Headline(option.summary))
    text.append(letter == '[' || letter == ']' ? "\\" : "").append(1, letter);
  text += "]";
  if (option.argument.empty()) return text;
  const std::string argument(option.argument);
  text.append(option.Is_long() && !option.needs_argument ? "::" : ":");
  for (const char letter : argument) text.append(letter == ':' ? "\\" : "").append(1, letter);
  text += ":";
  switch (option.kind) {
    case Argument::file:
      return text + "_files";
    case Argument::directory:
      return text + "_files -/";
    case Argument::words:
      return text + "(" + Choices_of(option) + ")";
    case Argument::formats:
      return text + "_values -s , " + argument + " " + Choices_of(option);
    default:
      return text + " ";
  }
}

/// What zsh is told of the arguments of a word.
std::vector<std::string> Places_of(const Word& word) {
  if (!word.choices.front().empty()) return {"1:step:(" + Choices_of(word) + ")"};
  if (word.kind == Argument::words) return {Words_argument()};
  const std::string directory = ":directory:_files -/";
  if (word.of_kind == Word::any) return {"*" + directory};
  std::vector<std::string> places;
  for (std::size_t i = 1; i <= word.of_kind; ++i) places.push_back(std::to_string(i) + directory);
  return places;
}

/// Tells zsh of options and of arguments.
std::string Call(std::span<const Option> options, const std::vector<std::string>& places,
                 const std::string& indent) {
  std::vector<std::string> lines;
  for (const Option& option : options) lines.push_back(Zsh_argument(option));
  lines.insert(lines.end(), places.begin(), places.end());
  std::string text = indent + "_arguments";
  for (const std::string& line : lines)
    text.append(" \\\n  ").append(indent).append(Shell_word(line));
  return text;
}

constexpr std::string_view zsh_script = R"(local -a first
if (( CURRENT == 2 )) && [[ $words[2] != -* ]]; then
  first=(@a word@)
elif [[ $words[2] == (@any word@) ]]; then
  # From here on as behind a program of that name.
  shift words
  (( --CURRENT ))
fi
case $words[1] in
@behind words@esac
@options of runs@ $first
)";

}  // namespace

std::string Zsh_completion() {
  std::string behind_words;
  for (const Word& word : All_words())
    if (!Is_of_runs(word))
      behind_words.append("  ").append(word.word).append(")\n") +=
          Call(word.options, Places_of(word), "    ") + "\n    return ;;\n";
  return Filled("#compdef vorlane\n" + std::string(completion_head).append(zsh_script),
                {{"a word", Shell_word(Words_argument())},
                 {"any word", Names_of_words("|")},
                 {"behind words", behind_words},
                 {"options of runs", Call(All_options(), {}, "")}});
}

}  // namespace gns
