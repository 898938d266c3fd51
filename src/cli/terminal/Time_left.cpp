#include "cli/terminal/Time_left.h"

#include <algorithm>

namespace gns {

std::optional<double> Time_left::At(double seconds,
                                    const external_control::Work_done::Share& work) {
  // The first levels have the largest cliques, and take longer than the others.
  constexpr double least_seconds = 1.0;
  constexpr double least_share = 0.05;
  constexpr double many_seconds = 10.0;
  constexpr double share_after_many = 0.005;
  if (work.stage != stage_) {
    stage_ = work.stage;
    start_ = seconds;
    before_ = work.done;
  }
  const double passed = seconds - start_;
  const auto done = static_cast<double>(work.done - std::min(before_, work.done));
  const auto left = static_cast<double>(work.total - work.done);
  const double least = passed < many_seconds ? least_share : share_after_many;
  if (work.total == 0 || passed < least_seconds || done < least * (done + left) || done == 0.0)
    return std::nullopt;
  return passed * left / done;
}

}  // namespace gns
