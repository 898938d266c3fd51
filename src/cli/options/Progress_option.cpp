#include "cli/options/Progress_option.h"

#include <algorithm>
#include <string>

#include "cli/options/Option_table.h"
#include "foundation/Errors.h"
#include "foundation/text/My_string_to_d.h"

namespace gns {

namespace {

/// Takes one of the values behind "="; false if it is none.
bool Take_value(std::string_view value, Progress_option& option) {
  constexpr double longest = 1e6;
  if (value == "json") {
    option.form = Progress_option::Form::json;
  } else if (value == "none") {
    option.form = Progress_option::Form::none;
  } else {
    return stringtodouble(value, option.interval) && option.interval > 0.0 &&
           option.interval <= longest;
  }
  return true;
}

}  // namespace

bool Read_progress_option(std::string_view word, Progress_option& option) {
  const Option* given = Long_option_of(word);
  if (given == nullptr || given->word != "--progress") return false;
  std::string_view values = word.substr(given->word.size());
  option = {Progress_option::Form::lines};
  while (!values.empty()) {
    values.remove_prefix(1);
    const std::string_view value = values.substr(0, values.find(','));
    if (!Take_value(value, option))
      throw Xerror_msg("--progress takes seconds, json or none, as in --progress=5 or " +
                       std::string("--progress=json,5; it can't be '") + std::string(value) +
                       "'.\n");
    values.remove_prefix(value.size());
  }
  return true;
}

}  // namespace gns
