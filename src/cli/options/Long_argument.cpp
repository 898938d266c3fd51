#include "cli/options/Long_argument.h"

#include <string_view>

#include "foundation/Errors.h"
#include "foundation/text/Shown_text.h"

namespace gns {

void Long_argument::Refuse(const std::string& wrong) const {
  if (!wrong.empty())
    throw Xerror_msg(std::string(option.word) + " can't be " + Quoted(argument) + ": " + wrong +
                     ".\n");
}

std::optional<Long_argument> Long_argument_at(std::span<const char* const> words) {
  const Option* const option = words.empty() ? nullptr : Long_option_of(words[0]);
  if (option == nullptr || !option->needs_argument) return std::nullopt;
  const std::string_view first = words[0];
  if (first.size() > option->word.size())
    return Long_argument{*option, std::string(first.substr(option->word.size() + 1)), 1};
  if (words.size() < 2)
    throw Xerror_msg(std::string(option->word) + " needs " + std::string(option->argument) + ".\n");
  return Long_argument{*option, words[1], 2};
}

}  // namespace gns
