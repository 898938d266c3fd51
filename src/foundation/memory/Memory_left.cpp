#include "foundation/memory/Memory_left.h"

#include <sys/resource.h>
#include <unistd.h>

#include <algorithm>
#include <string>
#include <vector>

#include "foundation/Control_groups.h"

namespace gns {

namespace {

constexpr std::uint64_t no_limit = UINT64_MAX;

/// A field of /proc/self/statm, which counts pages; 0 where the system tells nothing.
std::uint64_t Bytes_in_use(std::size_t field) {
  const std::vector<std::string> words = Words_in("/proc/self/statm");
  if (words.size() <= field) return 0;
  return std::stoull(words[field]) * static_cast<std::uint64_t>(::sysconf(_SC_PAGE_SIZE));
}

std::uint64_t Left_below(__rlimit_resource resource, std::size_t field) {
  struct rlimit limit = {};
  if (::getrlimit(resource, &limit) != 0 || limit.rlim_cur == RLIM_INFINITY) return no_limit;
  const std::uint64_t in_use = Bytes_in_use(field);
  return limit.rlim_cur > in_use ? limit.rlim_cur - in_use : 0;
}

}  // namespace

std::uint64_t Memory_left() {
  constexpr std::size_t all_field = 0;
  constexpr std::size_t data_field = 5;
  return std::min(Left_below(RLIMIT_DATA, data_field), Left_below(RLIMIT_AS, all_field));
}

}  // namespace gns
