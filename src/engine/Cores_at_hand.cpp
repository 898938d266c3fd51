#include "engine/Cores_at_hand.h"

#include <algorithm>
#include <cstdint>
#include <limits>
#include <optional>
#include <string_view>
#include <thread>
#include <vector>

#include "foundation/Control_groups.h"
#include "foundation/Environment.h"
#include "foundation/text/My_string_to_i.h"

namespace gns {

namespace {

constexpr unsigned no_limit = std::numeric_limits<unsigned>::max();

/// Of the first scheduler that tells a number.
unsigned Cores_of_job() {
  for (const char* const name :
       {"SLURM_CPUS_PER_TASK", "PBS_NCPUS", "NCPUS", "NSLOTS", "LSB_DJOB_NUMPROC"}) {
    unsigned cores = 0;
    if (Convert_plain(Environment_variable(name), cores) && cores > 0) return cores;
  }
  return no_limit;
}

/// So many cores that a group's time of each period is used up, rounded up.
unsigned Cores_of_group(const Control_group& group) {
  std::optional<std::uint64_t> time;
  std::optional<std::uint64_t> period;
  if (group.version == 1) {
    time = Number_in(group.directory + "/cpu.cfs_quota_us");
    period = Number_in(group.directory + "/cpu.cfs_period_us");
  } else if (Words_in(group.directory + "/cpu.max").size() == 2) {
    const std::string file = group.directory + "/cpu.max";
    time = Number_in(file);  // none if it is "max"
    period = time ? Number_in(file, Words_in(file)[0]) : std::nullopt;
  }
  if (!time || !period || *time == 0 || *period == 0) return no_limit;
  return static_cast<unsigned>(std::min<std::uint64_t>((*time + *period - 1) / *period, no_limit));
}

}  // namespace

unsigned Cores_at_hand(const std::string& root) {
  unsigned cores = std::min(std::max(std::thread::hardware_concurrency(), 1U), Cores_of_job());
  for (const Control_group& group : Groups_around("cpu", root))
    cores = std::min(cores, Cores_of_group(group));
  return cores;
}

}  // namespace gns
