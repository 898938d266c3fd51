#include "engine/Memory_limit.h"

#ifdef __GLIBC__
#include <malloc.h>
#endif
#include <sys/resource.h>
#include <unistd.h>

#include <algorithm>
#include <charconv>
#include <optional>
#include <string_view>

#include "control/Run_control.h"
#include "foundation/Control_groups.h"
#include "foundation/Environment.h"
#include "foundation/Errors.h"

namespace gns {

namespace {

constexpr std::uint64_t kilobyte = 1024;
constexpr std::uint64_t megabyte = kilobyte * kilobyte;

/// Where a version of the control groups keeps its figures.
struct Cgroup_files {
  const char* limit;
  const char* usage;
  const char* inactive_files;
  const char* active_files;
};
constexpr Cgroup_files version_1 = {"/memory.limit_in_bytes", "/memory.usage_in_bytes",
                                    "total_inactive_file", "total_active_file"};
constexpr Cgroup_files version_2 = {"/memory.max", "/memory.current", "inactive_file",
                                    "active_file"};

std::uint64_t Less(std::uint64_t a, std::uint64_t b) { return a > b ? a - b : 0; }

/// What is left in one control group; nothing if it has no limit.
std::optional<std::uint64_t> Left_in_group(const Control_group& group) {
  const Cgroup_files& files = group.version == 1 ? version_1 : version_2;
  const std::optional<std::uint64_t> limit = Number_in(group.directory + files.limit);
  if (!limit) return std::nullopt;
  const std::string stat = group.directory + "/memory.stat";
  const std::uint64_t cached = Number_in(stat, files.inactive_files).value_or(0) +
                               Number_in(stat, files.active_files).value_or(0);
  return Less(*limit, Less(Number_in(group.directory + files.usage).value_or(0), cached));
}

/// The least that is left in a control group around this process.
std::uint64_t Left_in_own_groups(const std::string& root) {
  std::uint64_t least = UINT64_MAX;
  for (const Control_group& group : Groups_around("memory", root))
    least = std::min(least, Left_in_group(group).value_or(UINT64_MAX));
  return least;
}

std::uint64_t Physical_memory() {
  const auto pages = static_cast<std::uint64_t>(::sysconf(_SC_PHYS_PAGES));
  return pages * static_cast<std::uint64_t>(::sysconf(_SC_PAGE_SIZE));
}

std::uint64_t Parsed(std::string_view text) {
  std::uint64_t number = 0;
  const auto [rest, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  const std::string_view unit(rest, static_cast<std::size_t>(text.data() + text.size() - rest));
  std::uint64_t scale = 0;
  if (unit.empty()) scale = 1;
  if (unit == "K") scale = kilobyte;
  if (unit == "M") scale = megabyte;
  if (unit == "G") scale = megabyte * kilobyte;
  if (error != std::errc() || scale == 0 || number == 0 || number > UINT64_MAX / scale)
    throw Xerror_msg("VORLANE_MEMORY_LIMIT is '" + std::string(text) +
                     "', but must be a number of bytes, or a number and K, M or G.\n");
  return number * scale;
}

}  // namespace

std::uint64_t Available_memory(const std::string& root) {
  const std::optional<std::uint64_t> available = Number_in(root + "/proc/meminfo", "MemAvailable:");
  return std::min(available ? *available * kilobyte : Physical_memory(), Left_in_own_groups(root));
}

std::uint64_t Default_memory_limit(std::uint64_t available, std::uint64_t machine) {
  constexpr std::uint64_t most_left = 2 * kilobyte * megabyte;
  return available - std::min({machine / 4, most_left, available / 2});
}

std::uint64_t Limit_memory(std::uint64_t bytes) {
  if (!memory_is_limited) return 0;
  struct rlimit limit = {};
  if (::getrlimit(RLIMIT_DATA, &limit) != 0) return 0;
  limit.rlim_cur = std::min<rlim_t>(limit.rlim_cur, bytes);
#ifdef __GLIBC__
  // What one worker gives back is there for all. It sets a number that is read when a thread first
  // allocates. NOLINTNEXTLINE(concurrency-mt-unsafe)
  if (external_control::This_control().workers > 1) ::mallopt(M_ARENA_MAX, 1);
#endif
  return ::setrlimit(RLIMIT_DATA, &limit) == 0 ? limit.rlim_cur : 0;
}

std::uint64_t Limit_memory() {
  const std::string_view wanted = Environment_variable("VORLANE_MEMORY_LIMIT");
  return Limit_memory(wanted.empty() ? Default_memory_limit(Available_memory(), Physical_memory())
                                     : Parsed(wanted));
}

}  // namespace gns
