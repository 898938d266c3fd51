#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "foundation/Errors.h"
#include "foundation/text/Character_set.h"
#include "results/Index_list.h"
#include "results/Name_list.h"

namespace gns {

/// A set of characters that stays empty.
inline constexpr Character_set MY_STRING_CHOPPER_CLASS_DEF_INI_DELIMETERES;

/// The delimiters of the chopping extractions, one set for the whole process; empty at first.
class my_string_chopper_class {
 public:
  static Character_set delimeters;

  static void Set_delims(const Character_set& set) { delimeters = set; }
  /// Blank, tab and newline.
  static void Set_delims_default() { delimeters = {' ', '\t', '\n'}; }
};

/// A chopping extraction takes words off the front of a text, which gets shorter. Words are what
/// stands between delimiters, of which there may be any number in a row and at both ends. A word
/// that `Convert_from_string` refuses throws Xerror_msg; one that it finds suspicious is taken,
/// with a warning on standard output.

/// Takes one word, which may be empty, and the delimiters behind it.
std::string_view& operator>>(std::string_view& text, std::string& value);
std::string_view& operator>>(std::string_view& text, std::int32_t& value);

/// Takes all words and appends them to the values. Throws Xerror_msg if `values` is empty then. The
/// text stays whole if this throws.
std::string_view& operator>>(std::string_view& text, Name_list& values);
std::string_view& operator>>(std::string_view& text, Index_list& values);

/// The same for a text that owns its characters: what is taken is erased.
template <typename Value>
requires requires(std::string_view& text, Value& value) { text >> value; }
std::string& operator>>(std::string& text, Value& value) {
  std::string_view rest = text;
  rest >> value;
  return text.erase(0, text.size() - rest.size());
}

/// The error of a text without a word.
Xerror_msg No_values();

}  // namespace gns
