#include "search/Attempt.h"

#include <algorithm>
#include <ctime>

namespace gns {

double Processor_seconds() { return static_cast<double>(std::clock()) / 1000000.0; }

void Attempt::Start() {
  timed_out_ = false;
  stride_ = 1;
  steps_to_read_ = 1;
  if (limit_ != nullptr) start_time_ = last_time_ = limit_->now();
}

/// Reads the clock and sets how many steps may pass until it is read again: twice as many as the
/// last time while they take less than a few microseconds, half as many where they take more.
bool Attempt::Read() {
  constexpr double target = 5e-6;
  constexpr std::uint32_t longest_stride = 1U << 10U;
  const double time = limit_->now();
  timed_out_ = time - start_time_ > limit_->seconds;
  const double taken = time - last_time_;
  last_time_ = time;
  if (taken < target) stride_ = std::min(stride_ * 2, longest_stride);
  if (taken > 2 * target) stride_ = std::max(stride_ / 2, 1U);
  steps_to_read_ = stride_;
  return timed_out_;
}

}  // namespace gns
