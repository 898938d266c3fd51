#pragma once

#include <chrono>
#include <cstdint>
#include <string>

namespace gns {

/// Wall-clock time from the making of the object on.
class Stopwatch {
 public:
  [[nodiscard]] double Seconds() const {
    return std::chrono::duration<double>(Clock::now() - start_).count();
  }

 private:
  using Clock = std::chrono::steady_clock;
  Clock::time_point start_ = Clock::now();
};

/// The most memory that this process has held at once, in bytes.
std::uint64_t Peak_memory();

/// "412 MB", of 2^20 bytes each.
std::string In_megabytes(std::uint64_t bytes);

/// "85 MB", "7.3 GB", "12.1 TB": rounded up; units are 2^10 of the one before.
std::string In_units(std::uint64_t bytes);

/// "12.34 s, peak memory 412 MB".
std::string Resources_used(const Stopwatch& watch);

}  // namespace gns
