#pragma once

#include <condition_variable>
#include <mutex>
#include <stop_token>
#include <thread>

#include "cli/Resources.h"

namespace gns {

/// Shows on standard error, while it lives, how far the run has come: a few lines that a thread of
/// its own rewrites several times a second and erases at the end. Where standard error is no
/// terminal, or one that can't move its cursor, it does nothing. Colour is left out if NO_COLOR is
/// set.
class Live_display {
 public:
  /// `watch` counts the time that is shown.
  explicit Live_display(const Stopwatch& watch);

 private:
  void Show(const std::stop_token& end);

  const Stopwatch& watch_;
  std::mutex lock_;
  std::condition_variable_any ended_;
  std::jthread thread_;  ///< last, as it uses the others
};

}  // namespace gns
