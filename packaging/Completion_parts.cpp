#include "packaging/Completion_parts.h"

#include "cli/options/Marked_text.h"

namespace gns {

std::string Headline(const Option& option) {
  return Without_marks(option.summary.substr(0, option.summary.find_first_of(":;")));
}

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

}  // namespace gns
