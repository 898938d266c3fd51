#include "cli/options/Input_options.h"

#include <algorithm>
#include <array>
#include <string>
#include <string_view>

#include "cli/options/Option_table.h"
#include "foundation/Errors.h"
#include "foundation/text/Shown_text.h"
#include "foundation/text/Text_fields.h"

namespace gns {

namespace {

/// Each takes an argument and yields what is wrong with it, or nothing.
std::string Take_format(const std::string& name, Input_wishes& wishes) {
  wishes.format = Format_named(name);
  return wishes.format ? "" : "it must be " + Format_names();
}

std::string Take_columns(const std::string& list, Input_wishes& wishes) {
  wishes.columns.clear();
  std::string_view rest = list;
  for (bool more = true; more;) {
    const std::string_view column = rest.substr(0, rest.find(','));
    wishes.columns.emplace_back(column);
    more = column.size() < rest.size();
    rest.remove_prefix(column.size() + (more ? 1 : 0));
  }
  const std::size_t count = wishes.columns.size();
  const bool all_there = std::ranges::none_of(wishes.columns, &std::string::empty);
  return (count == 2 || count == 3) && all_there
             ? ""
             : "it must be two or three columns, by name or number: FROM,TO,WEIGHT";
}

std::string Take_blanks(const std::string& character, Input_wishes& wishes) {
  wishes.blanks = character;
  const bool is_one = Count_characters(character) == 1 && !Is_space(character[0]) &&
                      character != "#" && character[0] != '\0';
  return is_one ? "" : "it must be a single character, and neither a blank nor '#'";
}

struct Input_option {
  std::string_view word;
  std::string (*take)(const std::string& argument, Input_wishes& wishes);
};

constexpr std::array input_options{Input_option{"--format", Take_format},
                                   Input_option{"--columns", Take_columns},
                                   Input_option{"--blanks", Take_blanks}};

}  // namespace

std::size_t Read_input_option(std::span<const char* const> words, Input_wishes& wishes) {
  const Option* const given = words.empty() ? nullptr : Long_option_of(words[0]);
  if (given == nullptr) return 0;
  const auto* const option = std::ranges::find(input_options, given->word, &Input_option::word);
  if (option == input_options.end()) return 0;
  const std::string_view first = words[0];
  const bool is_behind = first.size() > option->word.size();
  if (!is_behind && words.size() < 2)
    throw Xerror_msg(std::string(option->word) + " needs " + std::string(given->argument) + ".\n");
  const std::string argument(is_behind ? first.substr(option->word.size() + 1) : words[1]);
  const std::string wrong = option->take(argument, wishes);
  if (!wrong.empty())
    throw Xerror_msg(std::string(option->word) + " can't be " + Quoted(argument) + ": " + wrong +
                     ".\n");
  return is_behind ? 1 : 2;
}

}  // namespace gns
