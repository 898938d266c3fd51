#include "cli/options/Output_options.h"

#include <algorithm>
#include <string>

#include "foundation/Errors.h"
#include "foundation/text/Shown_text.h"

namespace gns {

using vorlane::exporting::Format_of;

std::vector<const vorlane::exporting::Format*> Formats_in(std::string_view names) {
  std::vector<const vorlane::exporting::Format*> formats;
  for (bool more = true; more;) {
    const std::string_view name = names.substr(0, names.find(','));
    more = name.size() < names.size();
    names.remove_prefix(name.size() + (more ? 1 : 0));
    formats.push_back(Format_of(name));
    if (formats.back() != nullptr) continue;
    std::string there;
    for (const auto& other : vorlane::exporting::All_formats())
      there.append(there.empty() ? "" : ", ").append(other.name);
    throw Xerror_msg("There is no format " + Quoted(name) + "; there are " + there + ".\n");
  }
  return formats;
}

bool Take_output_option(const Long_argument& given, Output_wishes& wishes) {
  if (given.option.word == "--export") {
    wishes.formats = Formats_in(given.argument);
    return true;
  }
  if (given.option.word == "--report") wishes.report = given.argument;
  return given.option.word == "--report";
}

}  // namespace gns
