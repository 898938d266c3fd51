#pragma once

#include <optional>
#include <string>
#include <vector>

#include "formats/Format.h"

namespace gns {

/// What a caller says about an input beside its path.
struct Input_wishes {
  std::optional<Format> format;  ///< without: told by the name
  /// Of csv and tsv: the columns of first names, second names and, if there is a third, weights;
  /// by their names in the first line, or by their numbers from 1.
  std::vector<std::string> columns;
  bool directed = false;  ///< how the links will be taken, for a word where the file says otherwise
  /// Names are to go to results files, which can't hold white space in them: they are refused, and
  /// so is a file with a zero near its start, which is no text.
  bool for_files = false;
  /// A character that takes the place of what results files can't hold; empty: none.
  std::string blanks;
};

}  // namespace gns
