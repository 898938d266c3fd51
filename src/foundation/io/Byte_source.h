#pragma once

#include <cstddef>

namespace gns {

/// Where the bytes of a reader come from, one after the other.
class Byte_source {
 public:
  Byte_source() = default;
  Byte_source(const Byte_source&) = delete;
  Byte_source& operator=(const Byte_source&) = delete;
  virtual ~Byte_source() = default;

  /// Puts the next bytes into the buffer, one at least and `size` at most, and yields how many; 0
  /// at the end. Throws Xerror_msg if they can't be had.
  virtual std::size_t Read(char* buffer, std::size_t size) = 0;
};

}  // namespace gns
