#pragma once

#include <cstdint>

namespace gns {

/// Bytes that this process may still take below the limits that it was given (RLIMIT_DATA,
/// RLIMIT_AS); the greatest number there is without one.
std::uint64_t Memory_left();

}  // namespace gns
