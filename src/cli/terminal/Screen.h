#pragma once

#include "cli/terminal/Progress_view.h"
#include "cli/terminal/Time_left.h"

namespace gns {

/// A few lines at the end of a terminal that are written anew each time.
class Screen : public Progress_view {
 public:
  Screen();
  void Show(const Stopwatch& watch) override;
  void Step_aside() override;
  void End(const Stopwatch& watch) override;

 private:
  [[nodiscard]] std::string To_the_top() const;

  Time_left time_left_;
  std::size_t shown_ = 0;  ///< lines
  bool coloured_;
};

}  // namespace gns
