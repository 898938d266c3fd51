#pragma once

#include <atomic>

namespace external_control {

/// Refuses a second call of something that may go on only once at a time in a process: the flag is
/// held from construction to destruction.
class Sole_call {
 public:
  /// Throws Xerror_msg if the flag is held already.
  explicit Sole_call(std::atomic<bool>& going_on);
  ~Sole_call() { going_on_.store(false); }
  Sole_call(const Sole_call&) = delete;
  Sole_call& operator=(const Sole_call&) = delete;

 private:
  std::atomic<bool>& going_on_;
};

}  // namespace external_control
