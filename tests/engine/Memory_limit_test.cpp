#include "engine/Memory_limit.h"

#include <gtest/gtest.h>

#include <array>
#include <map>

#include "Temp_dir.h"

namespace gns {
namespace {

using Files = std::map<std::string, std::string>;

TEST(MemoryLimit, LeavesAQuarterOrTwoGigabytes) {
  constexpr std::uint64_t gigabyte = std::uint64_t{1} << 30U;
  for (const auto& [available, machine, limit] :
       std::vector<std::array<std::uint64_t, 3>>{{60, 64, 58}, {3, 4, 2}, {20, 64, 18}, {2, 64, 1}})
    EXPECT_EQ(Default_memory_limit(available * gigabyte, machine * gigabyte), limit * gigabyte);
}

TEST(MemoryLimit, FindsTheTightestBound) {
  constexpr std::uint64_t machine = 8000 * 1024;
  const std::string v1 = "sys/fs/cgroup/memory/";
  const std::string v2 = "sys/fs/cgroup/";
  const std::vector<std::pair<Files, std::uint64_t>> cases{
      {{}, machine},
      {{{"proc/self/cgroup", "0::/\n"}, {v2 + "memory.max", "max\n"}}, machine},
      // Cached files can be dropped.
      {{{"proc/self/cgroup", "1:cpu:/\n0::/\n"},
        {v2 + "memory.max", "1000\n"},
        {v2 + "memory.current", "700\n"},
        {v2 + "memory.stat", "anon 400\ninactive_file 200\nactive_file 100\n"}},
       600},
      // A group around the own one is tighter.
      {{{"proc/self/cgroup", "0::/a/b\n"},
        {v2 + "a/b/memory.max", "900\n"},
        {v2 + "a/memory.max", "500\n"},
        {v2 + "a/memory.current", "600\n"}},
       0},
      // Seen from inside a container, the path of the group is not there.
      {{{"proc/self/cgroup", "7:cpu,memory:/outside\n0::/\n"},
        {v1 + "memory.limit_in_bytes", "5000\n"},
        {v1 + "memory.usage_in_bytes", "1000\n"},
        {v1 + "memory.stat", "inactive_file 9\ntotal_inactive_file 100\ntotal_active_file 0\n"}},
       4100},
      {{{"proc/self/cgroup", "4:memory:/\n"},
        {v1 + "memory.limit_in_bytes", "9223372036854771712"}},
       machine}};
  for (const auto& [files, expected] : cases) {
    const Temp_dir temp;
    for (const auto& [name, contents] : files) {
      std::filesystem::create_directories(std::filesystem::path(temp.Path(name)).parent_path());
      temp.Write(name, contents);
    }
    std::filesystem::create_directories(temp.Path("proc"));
    temp.Write("proc/meminfo", "MemTotal:  9000 kB\nMemAvailable:    8000 kB\n");
    EXPECT_EQ(Available_memory(temp.Path()), expected);
  }
}

}  // namespace
}  // namespace gns
