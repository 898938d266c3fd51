#pragma once

#include <memory>
#include <string>

#include "foundation/io/Byte_source.h"
#include "foundation/io/Line_reader.h"

namespace gns {

/// The bytes that a gzip file holds, in all its members. Throws Xno_link_file where this
/// program was built without zlib.
std::unique_ptr<Byte_source> Gzip_bytes(std::unique_ptr<Line_reader> packed,
                                        const std::string& file);

}  // namespace gns
