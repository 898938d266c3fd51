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

/// Limits the data of this process to so many bytes, so that running out of memory ends as
/// std::bad_alloc, and a run with the message "std::bad_alloc", instead of at the hands of the
/// system. Yields the limit in bytes; 0 if none was set. A limit that the process has already is
/// never raised. It is one of the whole process: for programs whose work is the run.
std::uint64_t Limit_memory(std::uint64_t bytes);

/// The same with the limit that the environment variable VORLANE_MEMORY_LIMIT gives, in bytes or
/// with K, M or G behind the number; else with Default_memory_limit() of the machine. A value that
/// can't be read throws Xerror_msg.
std::uint64_t Limit_memory();

/// What may be used of the bytes that are available: a quarter of the machine or 2 GB is left,
/// whichever is less, but never more than half of what is there.
std::uint64_t Default_memory_limit(std::uint64_t available, std::uint64_t machine);

/// Bytes that this process can still get: what the system calls available, and what is left in each
/// control group around the process (version 1 or 2), where cached files count as free. `root`
/// stands before the paths of the system's files.
std::uint64_t Available_memory(const std::string& root = "");

}  // namespace gns
