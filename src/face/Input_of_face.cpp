#include "face/Input_of_face.h"

#include "formats/Name_rule.h"

namespace vorlane::face {

gns::Input_wishes Wishes_of(const Link_options& options) {
  const auto refuse = [](const std::string& why) { throw Error(Error_kind::parameters, why); };
  gns::Input_wishes wishes;
  if (!options.format.empty()) {
    wishes.format = gns::Format_named(options.format);
    if (!wishes.format)
      refuse("There is no format '" + options.format + "'; it is one of " + gns::Format_names() +
             ".");
  }
  wishes.columns = options.columns;
  wishes.directed = options.directed;
  const std::size_t count = wishes.columns.size();
  if (count != 0 && count != 2 && count != 3)
    refuse("The columns must be two or three: both names and, if there is one, the weight.");
  wishes.blanks = options.blanks;
  if (!wishes.blanks.empty() && !gns::Name_rule::Can_replace_blanks(wishes.blanks))
    refuse(
        "What takes the place of blanks must be a single character, and neither a blank nor '#'.");
  return wishes;
}

}  // namespace vorlane::face
