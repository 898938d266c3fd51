#pragma once

#include <string>
#include <string_view>
#include <unordered_map>

#include "formats/Bad_field.h"
#include "formats/Input_wishes.h"
#include "foundation/text/Text_fields.h"

namespace gns {

/// Sees to it that names can go where they are to go. Results files have blanks between names, and
/// remarks behind a "#" at the start of a line.
class Name_rule {
 public:
  Name_rule(const Input_wishes& wishes, std::string file);

  /// Whether this is a single character, and one that files can hold anywhere in a name.
  static bool Can_replace_blanks(const std::string& character);

  /// The name as it is to be taken, valid as long as the rule and the name are. `where()` yields
  /// its place for a failure: Xep_wrong_line for an empty name, one that can't be held, and one
  /// that becomes equal to another by the character that is put in.
  template <typename Where>
  std::string_view Fit(std::string_view name, Where where) {
    return Needs_care(name) ? Care_for(name, where()) : name;
  }

 private:
  [[nodiscard]] bool Needs_care(std::string_view name) const {
    if (name.empty()) return true;
    if (!for_files_) return false;
    if (name.front() == '#') return true;
    for (const char c : name)
      if (Is_space(c)) return true;
    return !blanks_.empty() && name.find(blanks_) != std::string_view::npos;
  }
  std::string_view Care_for(std::string_view name, const Field_place& place);

  bool for_files_;
  std::string blanks_;
  std::string file_;
  /// Of names that hold what is put in, by themselves or since it was: as they were given.
  std::unordered_map<std::string, std::string> given_;
};

}  // namespace gns
