#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace gns {

/// Of a file system, in bytes.
struct Free_space {
  std::uint64_t bytes = 0;       ///< that the user of the process may still write
  std::uint64_t block_size = 0;  ///< what files take at least, and a multiple of it
};

/// The space where a path stands; nothing if the system doesn't tell.
std::optional<Free_space> Free_space_at(const std::string& path);

}  // namespace gns
