#include "search/Attempt.h"

#include <algorithm>
#include <ctime>

namespace gns {

double Processor_seconds() { return static_cast<double>(std::clock()) / 1000000.0; }

void Attempt::Start() {
  timed_out_ = false;
  first_reading_ = true;
  work_to_read_ = 0;
  if (limit_ != nullptr) start_time_ = last_time_ = limit_->now();
}

bool Attempt::Read() {
  const double time = limit_->now();
  timed_out_ = time - start_time_ > limit_->seconds;
  // What came before the first step is work of another kind.
  if (!first_reading_) Adapt_interval(time - last_time_, interval_ - work_to_read_);
  first_reading_ = false;
  last_time_ = time;
  work_to_read_ = interval_;
  return timed_out_;
}

/// Sets the interval such that it takes a fiftieth of the limit, but not so little that the
/// readings themselves take the time. It grows slowly and falls at once.
void Attempt::Adapt_interval(double taken, std::int64_t work) {
  constexpr double limit_parts = 50;
  constexpr double least = 5e-6;
  constexpr double most = 1e-4;
  constexpr std::int64_t longest = usual_work << 14U;
  const double target = std::clamp(limit_->seconds / limit_parts, least, most);
  const double fitting = static_cast<double>(work) * target / std::max(taken, target / 2);
  const auto most_work = static_cast<double>(std::min(interval_ * 2, longest));
  interval_ =
      static_cast<std::int64_t>(std::clamp(fitting, static_cast<double>(usual_work), most_work));
}

}  // namespace gns
