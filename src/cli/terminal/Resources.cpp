#include "cli/terminal/Resources.h"

#include <sys/resource.h>

#include <cmath>

#include "foundation/text/My_double2string.h"

namespace gns {

std::uint64_t Peak_memory() {
  constexpr std::uint64_t unit = 1024;  // what the system counts in
  struct rusage usage = {};
  if (::getrusage(RUSAGE_SELF, &usage) != 0) return 0;
  return static_cast<std::uint64_t>(usage.ru_maxrss) * unit;
}

std::string In_megabytes(std::uint64_t bytes) {
  constexpr unsigned shift = 20;
  return std::to_string(bytes >> shift) + " MB";
}

std::string In_units(std::uint64_t bytes) {
  constexpr double step = 1024;
  constexpr double tenths = 10;
  double amount = static_cast<double>(bytes) / (step * step);
  if (amount <= step) return std::to_string(static_cast<std::uint64_t>(std::ceil(amount))) + " MB";
  const char* unit = " GB";
  amount /= step;
  if (amount > step) {
    unit = " TB";
    amount /= step;
  }
  return double2string(std::ceil(amount * tenths) / tenths, 1) + unit;
}

std::string Resources_used(const Stopwatch& watch) {
  return double2string(watch.Seconds(), 2) + " s, peak memory " + In_megabytes(Peak_memory());
}

}  // namespace gns
