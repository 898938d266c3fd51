#pragma once

#include <condition_variable>
#include <memory>
#include <mutex>
#include <stop_token>
#include <string>
#include <thread>

#include "cli/options/Progress_option.h"
#include "cli/terminal/Progress_view.h"
#include "cli/terminal/Resources.h"

namespace gns {

/// Shows on standard error, while it lives, how far the run has come. On a terminal that can move
/// its cursor, a thread of its own rewrites a few lines several times a second and erases them at
/// the end; colour is left out if NO_COLOR is set. Elsewhere, and where the option asks for it, a
/// line is added now and then.
class Live_display {
 public:
  /// `watch` counts the time that is shown.
  Live_display(const Stopwatch& watch, const Progress_option& option);

  /// Says something else on standard error, a line of its own. From any thread.
  void Tell(const std::string& text);

 private:
  void Show(const std::stop_token& end, double interval);

  const Stopwatch& watch_;
  std::mutex lock_;
  std::condition_variable_any ended_;
  std::unique_ptr<Progress_view> view_;  ///< none if nothing is to be shown
  std::jthread thread_;                  ///< last, as it uses the others
};

}  // namespace gns
