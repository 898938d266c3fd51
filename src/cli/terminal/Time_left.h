#pragma once

#include <cstdint>
#include <optional>

#include "control/Work_done.h"

namespace gns {

/// Tells how long a stage will go on from how long it has gone on, as if all of its work took its
/// time alike.
class Time_left {
 public:
  /// In seconds; nothing while too little is done to tell. `seconds` is the time of `work`, and
  /// never less than at the call before.
  std::optional<double> At(double seconds, const external_control::Work_done::Share& work);

 private:
  std::uint64_t stage_ = 0;
  double start_ = 0.0;        ///< when the stage was first seen
  std::uint64_t before_ = 0;  ///< what it had done by then
};

}  // namespace gns
