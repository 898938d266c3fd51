#pragma once

#include <cstdint>
#include <functional>

#include "control/Clique_find_ext_cont.h"

namespace gns {

/// Seconds of processor time that the whole process has used.
double Processor_seconds();

/// How much processor time one attempt on a node may take.
struct Time_limit {
  double seconds;
  /// The one door to the clock.
  std::function<double()> now = Processor_seconds;
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
    return limit_ != nullptr && (timed_out_ || (--steps_to_read_ == 0 && Read()));
  }

  [[nodiscard]] bool Timed_out() const { return timed_out_; }

 private:
  bool Read();

  const Time_limit* limit_;
  double start_time_ = 0.0;
  double last_time_ = 0.0;
  bool timed_out_ = false;
  std::uint32_t steps_to_read_ = 1;  ///< steps until the clock is read again
  std::uint32_t stride_ = 1;
};

}  // namespace gns
