#include "control/Clique_find_ext_cont.h"

namespace external_control {

constinit std::atomic<bool>& STOP_CURRENT_PROCESS = PROCESS_CONTROL.stop;
constinit std::atomic<bool>& STOP_AT_ONCE = PROCESS_CONTROL.stop_at_once;
constinit Report_variable& CURRENT_STATE_REPORT = PROCESS_CONTROL.state_report;
Report_variable ERROR_MESSAGE;
Report_variable JAVA_CPP_TRANSLATE_STATE_REPORT;
constinit std::atomic<void (*)()>& BEFORE_UNWINDING = PROCESS_CONTROL.before_unwinding;
constinit Progress& PROGRESS = PROCESS_CONTROL.progress;
constinit Work_done& WORK_DONE = PROCESS_CONTROL.work_done;
constinit Output_bound& OUTPUT_BOUND = PROCESS_CONTROL.output_bound;

}  // namespace external_control

namespace gns {

void Stop_process() { external_control::STOP_CURRENT_PROCESS.store(true); }

void Stop_at_once() {
  external_control::STOP_AT_ONCE.store(true);
  Stop_process();
}

void Reset_stop_process() {
  external_control::STOP_AT_ONCE.store(false);
  external_control::STOP_CURRENT_PROCESS.store(false);
}

std::string Read_state_report() { return external_control::CURRENT_STATE_REPORT.Text(); }

std::string Read_error_message() { return external_control::ERROR_MESSAGE.Text(); }

}  // namespace gns
