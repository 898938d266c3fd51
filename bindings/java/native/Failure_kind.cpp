#include "bindings/java/native/Failure_kind.h"

#include <exception>
#include <new>

#include "control/Run_control.h"
#include "engine/Check_switches.h"
#include "foundation/Errors.h"

namespace gns {

namespace {

/// An Xerror_msg tells in words only what was wrong: the parameters, or a directory.
Failure_kind Kind_of_message(const Run_parameters* run) {
  if (run == nullptr) return Failure_kind::input;
  try {
    Refuse_bad_parameters(*run);
    return Failure_kind::output;
  } catch (const Xerror_msg&) {
    return Failure_kind::parameters;
  }
}

Failure_kind Kind_of_current_failure(const Run_parameters* run) {
  try {
    throw;
  } catch (const Xep_read_file&) {
    return Failure_kind::input;
  } catch (const Xerror_msg&) {
    return Kind_of_message(run);
  } catch (const std::bad_alloc&) {
    return Failure_kind::memory;
  } catch (...) {
    const bool stopped = external_control::This_control().stop;
    return stopped ? Failure_kind::stopped : Failure_kind::other;
  }
}

}  // namespace

Failure_kind& Last_failure_kind() {
  thread_local Failure_kind kind = Failure_kind::other;
  return kind;
}

Failure_kind Kind_of(vorlane::Error_kind kind) {
  switch (kind) {
    case vorlane::Error_kind::parameters:
      return Failure_kind::parameters;
    case vorlane::Error_kind::input:
      return Failure_kind::input;
    case vorlane::Error_kind::output:
      return Failure_kind::output;
    case vorlane::Error_kind::memory:
      return Failure_kind::memory;
    case vorlane::Error_kind::stopped:
      return Failure_kind::stopped;
    case vorlane::Error_kind::other:
      break;
  }
  return Failure_kind::other;
}

void Note_failure(const Run_parameters* run) { Last_failure_kind() = Kind_of_current_failure(run); }

}  // namespace gns
