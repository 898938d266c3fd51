#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace gns {

/// A place in an input, both counted from 1; a column of 0 isn't known.
struct Field_place {
  std::size_t line = 0;
  std::size_t column = 0;
};

/// What was expected at a place, and what helps; both in words.
struct Field_fault {
  std::string expected;
  std::string_view found;  ///< empty if nothing stands there
  std::string cure;
};

/// Throws Xep_wrong_line.
[[noreturn]] void Refuse_field(const std::string& file, const Field_place& place,
                               const Field_fault& fault);

}  // namespace gns
