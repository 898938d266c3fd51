#include "formats/Name_rule.h"

#include <utility>

#include "foundation/text/Shown_text.h"

namespace gns {

Name_rule::Name_rule(const Input_wishes& wishes, std::string file)
    : for_files_(wishes.for_files), blanks_(wishes.blanks), file_(std::move(file)) {}

bool Name_rule::Can_replace_blanks(const std::string& character) {
  return Count_characters(character) == 1 && !Is_space(character[0]) && character != "#" &&
         character[0] != '\0';
}

std::string_view Name_rule::Care_for(std::string_view name, const Field_place& place) {
  if (name.empty()) Refuse_field(file_, place, {"a name", name, "Each link needs two."});
  if (blanks_.empty())
    Refuse_field(file_, place,
                 {"a name that results files can hold, without blanks and no '#' in front", name,
                  "--blanks=_ puts '_' in their place."});
  std::string fit;
  for (std::size_t i = 0; i < name.size(); ++i) {
    if (Is_space(name[i]) || (i == 0 && name[i] == '#'))
      fit += blanks_;
    else
      fit += name[i];
  }
  const auto [entry, is_new] = given_.try_emplace(std::move(fit), name);
  if (!is_new && entry->second != name)
    Refuse_field(file_, place,
                 {"a name that stays apart from " + Quoted(entry->second) + " with '" + blanks_ +
                      "' in place of blanks",
                  name, "Choose another character for --blanks."});
  return entry->first;
}

}  // namespace gns
