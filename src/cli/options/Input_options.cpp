#include "cli/options/Input_options.h"

#include <algorithm>
#include <array>
#include <string>
#include <string_view>

#include "formats/Name_rule.h"

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
  return Name_rule::Can_replace_blanks(character)
             ? ""
             : "it must be a single character, and neither a blank nor '#'";
}

struct Input_option {
  std::string_view word;
  std::string (*take)(const std::string& argument, Input_wishes& wishes);
};

constexpr std::array input_options{Input_option{"--format", Take_format},
                                   Input_option{"--columns", Take_columns},
                                   Input_option{"--blanks", Take_blanks}};

}  // namespace

bool Take_input_option(const Long_argument& given, Input_wishes& wishes) {
  const auto* const option =
      std::ranges::find(input_options, given.option.word, &Input_option::word);
  if (option == input_options.end()) return false;
  given.Refuse(option->take(given.argument, wishes));
  return true;
}

}  // namespace gns
