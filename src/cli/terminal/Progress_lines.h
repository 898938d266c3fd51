#pragma once

#include "cli/terminal/Progress_view.h"
#include "cli/terminal/Time_left.h"

namespace gns {

/// Lines of a log, one each time; where they were asked for, one more at the end.
class Progress_lines : public Progress_view {
 public:
  Progress_lines(bool json, bool asked_for) : json_(json), asked_for_(asked_for) {}
  void Show(const Stopwatch& watch) override;
  void Step_aside() override {}
  void End(const Stopwatch& watch) override;

 private:
  Time_left time_left_;
  bool json_;
  bool asked_for_;
};

}  // namespace gns
