#include "cli/options/Word_line.h"

#include <algorithm>

#include "cli/options/Marked_text.h"
#include "foundation/Errors.h"

namespace gns {

namespace {

[[noreturn]] void Refuse(const Word& word, const std::string& why) {
  throw Xerror_msg(why + "\nusage: " + Usage_of(word) + "\n");
}

}  // namespace

Word_line Read_word_line(const Word& word, const std::vector<std::string>& words) {
  Word_line line;
  bool options_end = false;
  for (std::size_t i = 0; i < words.size(); ++i) {
    const std::string& text = words[i];
    if (options_end || text.size() < 2 || !text.starts_with('-')) {
      line.arguments.push_back(text);
      continue;
    }
    if (text == "--") {
      options_end = true;
      continue;
    }
    if (text == "--help") {
      line.help_asked = true;
      return line;
    }
    const std::string name = text.substr(0, text.find('='));
    const auto option = std::ranges::find(word.options, name, &Option::word);
    if (option == word.options.end() && word.takes_switches) {
      line.arguments.push_back(text);
      continue;
    }
    if (option == word.options.end())
      Refuse(word, "There is no option '" + name + "' of '" + std::string(word.word) + "'.");
    std::string& value = line.options[name];
    if (name.size() < text.size()) value = text.substr(name.size() + 1);
    if (option->argument.empty() != value.empty() && option->argument.empty())
      Refuse(word, "The option '" + name + "' takes no argument.");
    if (!option->argument.empty() && value.empty() && i + 1 < words.size()) value = words[++i];
    if (!option->argument.empty() && value.empty())
      Refuse(word, "The option '" + name + "' needs " + std::string(option->argument) + ".");
  }
  if (line.arguments.size() < word.least_arguments)
    Refuse(word, "'" + std::string(word.word) + "' needs more than that.");
  if (line.arguments.size() > word.most_arguments)
    Refuse(word, "'" + line.arguments[word.most_arguments] + "' is more than '" +
                     std::string(word.word) + "' takes.");
  return line;
}

std::string Usage_of(const Word& word) {
  std::string usage = "vorlane ";
  usage.append(word.word);
  for (const Option& option : word.options) {
    usage.append(option.mandatory ? " " : " [").append(option.Form());
    if (!option.mandatory) usage.append("]");
  }
  return usage.append(" ").append(word.arguments);
}

std::string Help_on(const Word& word) {
  constexpr std::size_t width = 80;
  constexpr std::size_t column = 20;
  std::string help = "Usage: ";
  help.append(Usage_of(word)).append("\n\n");
  help.append(Wrapped(Without_marks(word.description), width)).append("\n");
  if (!word.options.empty()) help.append("\n");
  for (const Option& option : word.options)
    help.append(Help_entry(option.Form(), column, option.summary));
  return help;
}

}  // namespace gns
