#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "formats/Bad_field.h"

namespace gns {

/// A line that is taken apart from its front, with what messages tell of it.
class Cut_field {
 public:
  Cut_field(const std::string& file, std::size_t line_number, std::string_view line)
      : file_(file), line_number_(line_number), line_(line), rest_(line) {}

  /// True if nothing is left but white space.
  [[nodiscard]] bool Is_at_end();
  /// The next word; empty at the end.
  std::string_view Word();
  /// The next word or, if it begins with a quote, all up to the next one. Throws Xep_wrong_line if
  /// there is none.
  std::string_view Label();
  /// The next word as a whole number, or as a number. Throws Xep_wrong_line if it is none, or above
  /// the greatest that is allowed; `expected` tells what was.
  std::uint64_t Whole_number(std::string_view expected, std::string_view cure, std::uint64_t least,
                             std::uint64_t greatest);
  double Number(std::string_view expected, std::string_view cure);

  /// Throws Xep_wrong_line at the word that was taken last.
  [[noreturn]] void Refuse(std::string_view expected, std::string_view cure) const;
  [[nodiscard]] Field_place Place() const;

 private:
  const std::string& file_;
  std::size_t line_number_;
  std::string_view line_;
  std::string_view rest_;
  std::string_view word_;
};

}  // namespace gns
