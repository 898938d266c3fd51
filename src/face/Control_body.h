#pragma once

#include "control/Run_control.h"
#include "vorlane/control.h"

namespace vorlane {

struct Control::Body {
  external_control::Run_control run;
};

}  // namespace vorlane
