#include "engine/Run_message.h"

#include <atomic>
#include <exception>

#include "control/Sole_call.h"

namespace gns {

const std::string run_finished = "Process ended succesfully.";

std::string Message_of(const std::function<void()>& work) {
  static std::atomic<bool> going_on = false;
  try {
    const external_control::Sole_call sole(going_on);
    work();
    return run_finished;
  } catch (const std::exception& failure) {
    return failure.what();
  }
}

}  // namespace gns
