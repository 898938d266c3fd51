#pragma once

#include <atomic>
#include <string>

#include "control/Run_control.h"

namespace external_control {

/// The control of the process, by its names. A run of the process's own (Find_coms, Load_coms, the
/// program) uses it; see Run_control for what each is.
extern std::atomic<bool>& STOP_CURRENT_PROCESS;
extern std::atomic<bool>& STOP_AT_ONCE;
extern Report_variable& CURRENT_STATE_REPORT;
extern Report_variable ERROR_MESSAGE;  ///< no stage writes it: always empty
extern Report_variable JAVA_CPP_TRANSLATE_STATE_REPORT;
extern std::atomic<void (*)()>& BEFORE_UNWINDING;
extern Progress& PROGRESS;
extern Work_done& WORK_DONE;
extern Output_bound& OUTPUT_BOUND;

}  // namespace external_control

namespace gns {

/// Asks the run that is going on to end at its next poll, as a rule between two stages or inside a
/// search; returns at once. Callable from any thread and from a signal handler.
void Stop_process();

/// The same, and the run ends inside its long stages too: within some hundredths of a second,
/// perhaps in the middle of a file.
void Stop_at_once();

/// Takes a stop request of either kind back. Nothing else does, so a host calls it before the next
/// run.
void Reset_stop_process();

/// The latest state report; empty before the first run.
std::string Read_state_report();

/// Always empty: failures travel in the message of the run.
std::string Read_error_message();

}  // namespace gns
