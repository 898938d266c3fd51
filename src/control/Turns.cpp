#include "control/Turns.h"

#include <chrono>

#include "control/Run_control.h"

namespace external_control {

void Turns::Await(std::uint32_t turn) {
  constexpr std::chrono::milliseconds between_polls(20);
  std::unique_lock guard(lock_);
  while (!passed_.wait_for(guard, between_polls, [&] { return turn_ == turn; }))
    Check_for_stop_signal();
}

void Turns::Pass() {
  {
    const std::lock_guard guard(lock_);
    ++turn_;
  }
  passed_.notify_all();
}

}  // namespace external_control
