#include "control/Sole_call.h"

#include "foundation/Errors.h"

namespace external_control {

Sole_call::Sole_call(std::atomic<bool>& going_on) : going_on_(going_on) {
  if (going_on_.exchange(true))
    throw gns::Xerror_msg(
        "ERROR: another run or reload is going on in this process, and only one can at a time.\n");
}

}  // namespace external_control
