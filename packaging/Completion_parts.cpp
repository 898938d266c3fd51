#include "packaging/Completion_parts.h"

#include "cli/options/Marked_text.h"
#include "export/Formats.h"

namespace gns {

bool Is_of_runs(const Word& word) { return word.word == "run"; }

std::span<const Option> Options_behind(const Word& word) {
  return Is_of_runs(word) ? All_options() : word.options;
}

bool Takes_next_word(const Option& option) {
  return !option.argument.empty() && (option.needs_argument || !option.Is_long());
}

std::string Headline(std::string_view summary) {
  return Without_marks(summary.substr(0, summary.find_first_of(":;")));
}

std::string Joined(const std::vector<std::string_view>& words, std::string_view between) {
  std::string text;
  for (const std::string_view word : words) text.append(text.empty() ? "" : between).append(word);
  return text;
}

std::string Names_of_words(std::string_view between) {
  std::vector<std::string_view> names;
  for (const Word& word : All_words()) names.push_back(word.word);
  return Joined(names, between);
}

std::string Names_of(std::span<const Option> options, std::string_view between,
                     const std::function<bool(const Option&)>& holds) {
  std::vector<std::string_view> names;
  for (const Option& option : options)
    if (holds(option)) names.push_back(option.word);
  return Joined(names, between);
}

std::string Filled(std::string script,
                   std::initializer_list<std::pair<std::string_view, std::string>> parts) {
  for (const auto& [name, part] : parts) {
    const std::string mark = std::string("@").append(name).append("@");
    for (std::size_t at = 0; (at = script.find(mark, at)) != std::string::npos; at += part.size())
      script.replace(at, mark.size(), part);
  }
  return script;
}

namespace {

/// Without the places that are left in an array of choices.
std::vector<std::string_view> Filled_places(std::span<const std::string_view> places) {
  std::vector<std::string_view> choices;
  for (const std::string_view choice : places)
    if (!choice.empty()) choices.push_back(choice);
  return choices;
}

}  // namespace

std::string Choices_of(const Word& word) {
  const std::string choices = Joined(Filled_places(word.choices), " ");
  return choices.empty() ? Names_of_words(" ") : choices;
}

std::string Choices_of(const Option& option) {
  std::vector<std::string_view> choices = Filled_places(option.choices);
  if (choices.empty() && option.kind == Option::Argument::formats)
    for (const auto& format : vorlane::exporting::All_formats()) choices.push_back(format.name);
  return Joined(choices, " ");
}

}  // namespace gns
