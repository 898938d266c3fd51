#pragma once

#include "cli/terminal/Resources.h"

namespace gns {

/// A way of showing progress on standard error.
class Progress_view {
 public:
  Progress_view() = default;
  Progress_view(const Progress_view&) = delete;
  Progress_view& operator=(const Progress_view&) = delete;
  virtual ~Progress_view() = default;

  virtual void Show(const Stopwatch& watch) = 0;
  /// Makes room for other words.
  virtual void Step_aside() = 0;
  virtual void End(const Stopwatch& watch) = 0;
};

}  // namespace gns
