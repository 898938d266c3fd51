#pragma once

#include <condition_variable>
#include <cstdint>
#include <mutex>

namespace external_control {

/// Keeps workers in order where one thing must come behind another: turns 0, 1, 2, ...
class Turns {
 public:
  /// Returns when it is this turn. Polls while it waits.
  void Await(std::uint32_t turn);
  /// The turn that was awaited is over.
  void Pass();

 private:
  std::mutex lock_;
  std::condition_variable passed_;
  std::uint32_t turn_ = 0;
};

}  // namespace external_control
