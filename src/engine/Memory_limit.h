#pragma once

#include <cstdint>
#include <string>

namespace gns {

/// False in a build with sanitizers, whose own data would not fit below a limit.
#ifdef VORLANE_SANITIZED
constexpr bool memory_is_limited = false;
#else
constexpr bool memory_is_limited = true;
#endif

/// Limits the data of this process, so that running out of memory ends as std::bad_alloc instead
/// of at the hands of the system. Yields the limit in bytes; 0 if none was set.
///
/// The environment variable VORLANE_MEMORY_LIMIT gives it, in bytes or with K, M or G behind the
/// number; else it is what the machine has to give, less a margin. A value that can't be read
/// throws Xerror_msg. A limit that the process has already is never raised.
std::uint64_t Limit_memory();

/// Bytes that this process can still get: what the system calls available, and what is left in each
/// control group around the process (version 1 or 2), where cached files count as free. `root`
/// stands before the paths of the system's files.
std::uint64_t Available_memory(const std::string& root = "");

}  // namespace gns
