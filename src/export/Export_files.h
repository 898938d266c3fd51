#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "export/Formats.h"
#include "export/Selection.h"

namespace vorlane::exporting {

/// An export into files.
struct Export_order {
  const Format* format = nullptr;
  /// What the names begin with, in front of the endings of the format's files.
  std::string stem;
  /// The whole name instead, where there is but one file.
  std::string file;
  bool overwrites = false;  ///< whether files that are there may be replaced
};

/// What an export has left.
struct Exported {
  std::vector<std::string> files;
  std::size_t changed_names = 0;  ///< times that a name had characters which the format can't hold
};

/// Their names.
std::vector<std::string> Files_of(const Export_order& order, const Selection& selection);
/// The same as far as they can be told before results are there.
std::vector<std::string> Files_of(const Export_order& order);

/// Throws an Error of kind `output` if one of the files is there and may not be replaced, which
/// the `word` of the program could do.
void Refuse_existing_files(const std::vector<std::string>& files, std::string_view word = "export");

/// Writes the files, each aside first and then under its name, so that none is ever seen in parts.
/// Throws an Error: of kind `output` if a file can't be written, which then isn't there; `stopped`
/// after the process was told to stop; as Results do where parts are read.
Exported Export(const Export_order& order, const Selection& selection);

}  // namespace vorlane::exporting
