#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "formats/Format.h"
#include "formats/Input_wishes.h"

namespace gns {

/// What stands where in a file of separated values.
struct Csv_layout {
  char separator = ',';
  bool has_header = false;
  std::size_t first = 0;  ///< columns, from 0
  std::size_t second = 1;
  std::optional<std::size_t> weight;

  /// How many columns have to be looked at.
  [[nodiscard]] std::size_t Width() const;
};

/// Finds it out from the first records: `start` is the beginning of the file, of which
/// `layout_bytes` are enough. Throws Xep_wrong_line where there is no separator and where a column
/// that was asked for isn't there.
Csv_layout Layout_of(std::string_view start, Format format, const Input_wishes& wishes,
                     const std::string& file);

constexpr std::size_t layout_bytes = std::size_t{1} << 16U;

}  // namespace gns
