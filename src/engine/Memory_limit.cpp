#include "engine/Memory_limit.h"

#include <sys/resource.h>
#include <unistd.h>

#include <algorithm>
#include <charconv>
#include <filesystem>
#include <optional>
#include <stdexcept>
#include <string_view>
#include <vector>

#include "foundation/Environment.h"
#include "foundation/Errors.h"
#include "foundation/io/Line_reader.h"
#include "foundation/text/Text_fields.h"

namespace gns {

namespace {

constexpr std::uint64_t kilobyte = 1024;
constexpr std::uint64_t megabyte = kilobyte * kilobyte;

/// Where a version of the control groups keeps its figures.
struct Cgroup_files {
  const char* mount;
  const char* limit;
  const char* usage;
  const char* inactive_files;
  const char* active_files;
};
constexpr Cgroup_files version_1 = {"/sys/fs/cgroup/memory", "memory.limit_in_bytes",
                                    "memory.usage_in_bytes", "total_inactive_file",
                                    "total_active_file"};
constexpr Cgroup_files version_2 = {"/sys/fs/cgroup", "memory.max", "memory.current",
                                    "inactive_file", "active_file"};

/// The lines of a file of the system; none if it is missing or can't be read.
std::vector<std::string> Lines_of(const std::string& path) {
  std::vector<std::string> lines;
  try {
    Line_reader file(path);
    for (std::string_view line; file.Next(line);) lines.emplace_back(line);
  } catch (const std::logic_error&) {
    lines.clear();
  }
  return lines;
}

/// The number on the line that begins with the key, or, without one, on the first.
std::optional<std::uint64_t> Number_in(const std::string& path, std::string_view key = {}) {
  for (const std::string& line : Lines_of(path)) {
    std::string_view rest = line;
    if (!key.empty() && Extract_word(rest) != key) continue;
    const std::string_view digits = Extract_word(rest);
    std::uint64_t number = 0;
    const auto result = std::from_chars(digits.data(), digits.data() + digits.size(), number);
    if (result.ec == std::errc()) return number;
    return std::nullopt;
  }
  return std::nullopt;
}

std::uint64_t Less(std::uint64_t a, std::uint64_t b) { return a > b ? a - b : 0; }

/// What is left in one control group; nothing if it has no limit.
std::optional<std::uint64_t> Left_in_group(const std::string& group, const Cgroup_files& files) {
  const std::optional<std::uint64_t> limit = Number_in(group + "/" + files.limit);
  if (!limit) return std::nullopt;
  const std::string stat = group + "/memory.stat";
  const std::uint64_t cached = Number_in(stat, files.inactive_files).value_or(0) +
                               Number_in(stat, files.active_files).value_or(0);
  return Less(*limit, Less(Number_in(group + "/" + files.usage).value_or(0), cached));
}

/// The least that is left in a control group and in those around it.
std::uint64_t Left_in_groups(const std::string& mount, std::filesystem::path group,
                             const Cgroup_files& files) {
  std::uint64_t least = UINT64_MAX;
  for (;; group = group.parent_path()) {
    least = std::min(least, Left_in_group(mount + group.string(), files).value_or(UINT64_MAX));
    if (!group.has_relative_path()) return least;
  }
}

/// A line reads "NUMBER:CONTROLLER,...:/PATH"; version 2 has no controllers.
std::uint64_t Left_in_own_groups(const std::string& root) {
  std::uint64_t least = UINT64_MAX;
  for (const std::string& line : Lines_of(root + "/proc/self/cgroup")) {
    const std::size_t first = line.find(':');
    const std::size_t second = line.find(':', first + 1);
    if (second == std::string::npos) continue;
    std::string controllers = line.substr(first, second - first + 1);
    std::ranges::replace(controllers, ',', ':');
    const bool memory = controllers.find(":memory:") != std::string::npos;
    if (!memory && controllers != "::") continue;
    const Cgroup_files& files = memory ? version_1 : version_2;
    least = std::min(least, Left_in_groups(root + files.mount, line.substr(second + 1), files));
  }
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
  return ::setrlimit(RLIMIT_DATA, &limit) == 0 ? limit.rlim_cur : 0;
}

std::uint64_t Limit_memory() {
  const std::string_view wanted = Environment_variable("VORLANE_MEMORY_LIMIT");
  return Limit_memory(wanted.empty() ? Default_memory_limit(Available_memory(), Physical_memory())
                                     : Parsed(wanted));
}

}  // namespace gns
