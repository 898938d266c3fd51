#include "engine/Run_message.h"

#include <atomic>
#include <exception>
#include <new>

#include "control/Sole_call.h"

namespace gns {

const std::string run_finished = "Process ended succesfully.";

namespace {

/// The text as far as there is memory for it.
std::string Copy_of(const char* text) noexcept {
  try {
    return text;
  } catch (const std::bad_alloc&) {
    return "std::bad_alloc";  // short enough to need no memory
  }
}

}  // namespace

std::string Message_of(const std::function<void()>& work) {
  static std::atomic<bool> going_on = false;
  try {
    const external_control::Sole_call sole(going_on);
    work();
    return Copy_of(run_finished.c_str());
  } catch (const std::exception& failure) {
    return Copy_of(failure.what());
  }
}

}  // namespace gns
