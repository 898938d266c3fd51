#include "engine/Cores_at_hand.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <map>
#include <string>
#include <thread>
#include <vector>

#include "Temp_dir.h"

namespace gns {
namespace {

/// Less than the machine may have, so that they show on one with two cores: 1 where there is a
/// limit of one core or less.
TEST(CoresAtHand, OfTheMachineTheJobAndTheControlGroup) {
  const unsigned machine = std::thread::hardware_concurrency();
  struct Case {
    std::map<std::string, std::string> files;
    const char* slurm;
    unsigned cores;
  };
  const std::string v1 = "sys/fs/cgroup/cpu/";
  const std::string v2 = "sys/fs/cgroup/";
  const std::vector<Case> cases = {
      {{}, "", machine},
      {{}, "1", 1},
      {{}, "100000", machine},
      {{}, "two", machine},
      {{}, "0", machine},
      {{{"proc/self/cgroup", "0::/job\n"}, {v2 + "job/cpu.max", "max 100000\n"}}, "", machine},
      {{{"proc/self/cgroup", "0::/job\n"}, {v2 + "job/cpu.max", "50000 100000\n"}}, "", 1},
      {{{"proc/self/cgroup", "0::/job\n"}, {v2 + "cpu.max", "100000 100000\n"}}, "", 1},
      {{{"proc/self/cgroup", "0::/job\n"}, {v2 + "cpu.max", "100001 100000\n"}},
       "",
       std::min(machine, 2U)},
      {{{"proc/self/cgroup", "0::/job\n"}, {v2 + "cpu.max", "100000\n"}}, "", machine},
      {{{"proc/self/cgroup", "4:cpu,cpuacct:/\n"},
        {v1 + "cpu.cfs_quota_us", "90000\n"},
        {v1 + "cpu.cfs_period_us", "100000\n"}},
       "",
       1},
      {{{"proc/self/cgroup", "4:cpu:/\n"},
        {v1 + "cpu.cfs_quota_us", "-1\n"},
        {v1 + "cpu.cfs_period_us", "100000\n"}},
       "",
       machine}};
  for (const Case& c : cases) {
    const Temp_dir temp;
    for (const auto& [name, contents] : c.files) {
      std::filesystem::create_directories(std::filesystem::path(temp.Path(name)).parent_path());
      temp.Write(name, contents);
    }
    ::setenv("SLURM_CPUS_PER_TASK", c.slurm, 1);
    EXPECT_EQ(Cores_at_hand(temp.Path()), c.cores) << &c - cases.data();
  }
  ::unsetenv("SLURM_CPUS_PER_TASK");
}

}  // namespace
}  // namespace gns
