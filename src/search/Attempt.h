#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>

#include "control/Run_control.h"

namespace gns {

/// Seconds of processor time that the whole process has used.
double Processor_seconds();

/// Yields seconds.
using Clock = std::function<double()>;

/// How much processor time one attempt on a node may take.
struct Time_limit {
  double seconds;
  /// The one door to the clock.
  Clock now = Processor_seconds;
};

/// An attempt to find the cliques of one node: polls the stop flag and, where there is a limit,
/// watches the clock.
class Attempt {
 public:
  /// Without a limit an attempt never runs over. `limit` must outlive the object.
  explicit Attempt(const Time_limit* limit = nullptr) : limit_(limit) {}

  /// Begins the next attempt: its time counts from here.
  void Start();

  /// The poll of every step.
  static void Check_for_stop() { external_control::Check_for_stop_signal(); }

  /// To be asked where a partial clique of three nodes or more still has candidates. True from the
  /// moment on at which the time was seen to exceed the limit.
  bool Runs_over() {
    Add_work(usual_work);
    return limit_ != nullptr && (timed_out_ || (work_to_read_ <= 0 && Read()));
  }

  /// Tells of work beyond that of a usual step, in word operations: the clock is read after so much
  /// work, so that a few long steps weigh as much as many short ones.
  void Add_work(std::size_t operations) { work_to_read_ -= static_cast<std::int64_t>(operations); }

  [[nodiscard]] bool Timed_out() const { return timed_out_; }

 private:
  static constexpr std::int64_t usual_work = 8;

  bool Read();
  void Adapt_interval(double taken, std::int64_t work);

  const Time_limit* limit_;
  double start_time_ = 0.0;
  double last_time_ = 0.0;
  bool timed_out_ = false;
  bool first_reading_ = true;
  std::int64_t work_to_read_ = 0;       ///< work until the clock is read again
  std::int64_t interval_ = usual_work;  ///< work between readings; kept from attempt to attempt
};

}  // namespace gns
