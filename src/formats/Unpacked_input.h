#pragma once

#include <memory>
#include <string>

#include "foundation/io/Line_reader.h"

namespace gns {

/// An input that is being read, unpacked if it was compressed.
struct Unpacked_input {
  std::unique_ptr<Line_reader> reader;
  std::string unpacking;  ///< a command that unpacks such a file; empty if it wasn't compressed
};

/// The path by which standard input is asked for, as it is open.
constexpr const char* standard_input = "-";

/// Opens the file; what its first bytes tell to be gzip (all its members) or zstd (all its frames)
/// is unpacked as it is read, whatever it is called. Throws Xep_file_not_found as Line_reader does,
/// and Xno_link_file for what is compressed in another way, for text in UTF-16 or UTF-32, and
/// where this program was built without the library that could unpack it. Damaged data are an
/// Xerror_msg when they are met, with their place.
Unpacked_input Open_input(const std::string& path);

}  // namespace gns
