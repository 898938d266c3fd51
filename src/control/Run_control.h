#pragma once

#include <atomic>
#include <cstdint>
#include <memory>
#include <string>
#include <utility>

#include "control/Report_variable.h"
#include "control/Work_done.h"

/// The channel between a run and the threads that watch it: a run pushes its state report and
/// polls for a stop; any other thread pulls reports and may ask for a stop at any moment.
namespace external_control {

/// How far a run has come, in figures; each is kept by its stage and read from any thread.
struct Progress {
  std::atomic<std::uint64_t> cliques_found = 0;
  std::atomic<std::uint64_t> nodes_left = 0;         ///< of a clique search, the one in hand too
  std::atomic<std::uint64_t> failed_in_a_row = 0;    ///< attempts of a time-limited search
  std::atomic<std::uint64_t> k_cliques_found = 0;    ///< at the k at hand
  std::atomic<std::uint64_t> k_cliques_visited = 0;  ///< whole ones and parts of them

  /// Back to zero, as at the start of a run.
  void Reset();
};

/// All that a run shares with those who watch it.
struct Run_control {
  /// Threads that may work for the run at a time; what is one behind the other by its nature has
  /// one all the same.
  unsigned workers = 1;
  /// A worker has failed: the polls of the others end them.
  std::atomic<bool> abandoned = false;
  std::atomic<bool> stop = false;
  /// Beside `stop`: it is to be honoured inside the long stages too (reading, sorting, percolation,
  /// writing), where otherwise it waits for the next stage.
  std::atomic<bool> stop_at_once = false;
  /// Called at the poll that ends the run, if it is set, in front of the exception. A program that
  /// ends with its run may leave from here: what is not unwound needs not be given back, and giving
  /// back gigabytes takes a while.
  std::atomic<void (*)()> before_unwinding = nullptr;
  Report_variable state_report;
  Progress progress;
  Work_done work_done;
  Output_bound output_bound;
};

/// Of the runs that are given none of their own.
extern Run_control PROCESS_CONTROL;

namespace control_sub {
/// The attribute: a shared library that is loaded late reaches it without a call, too.
[[gnu::tls_model("initial-exec")]] inline constinit thread_local Run_control* of_this_thread =
    &PROCESS_CONTROL;
}  // namespace control_sub

/// The control of the run that this thread works for. It is reached this way, as it is asked for in
/// every stage and at every step, and is never another one within a run.
inline Run_control& This_control() { return *control_sub::of_this_thread; }

/// While it lives, this thread works for a run with this control.
class Control_in_use {
 public:
  explicit Control_in_use(Run_control& control) : before_(control_sub::of_this_thread) {
    control_sub::of_this_thread = &control;
  }
  ~Control_in_use() { control_sub::of_this_thread = before_; }
  Control_in_use(const Control_in_use&) = delete;
  Control_in_use& operator=(const Control_in_use&) = delete;

 private:
  Run_control* before_;
};

/// What a thread is to its run: the sole one, or, for a while, the first of several workers or a
/// fellow of that one.
enum class Worker_role : std::uint8_t { sole, first, fellow };

/// What ends a worker, and is met by nobody but On_workers(): a stop, or the failure of another.
class Worker_leaves {};

namespace control_sub {
[[gnu::tls_model("initial-exec")]] inline constinit thread_local Worker_role role_of_this_thread =
    Worker_role::sole;
}  // namespace control_sub

/// Replaces the state report. Fellows don't: what they would say goes with what the first worker
/// says, but is about something else.
inline void Report_state(std::shared_ptr<const Report> report) {
  if (control_sub::role_of_this_thread != Worker_role::fellow)
    This_control().state_report = std::move(report);
}
inline void Report_state(std::string text) {
  if (control_sub::role_of_this_thread != Worker_role::fellow)
    This_control().state_report = std::move(text);
}

/// Ends a run: assigns the report of a stop, calls `before_unwinding` and throws
/// std::logic_error("Process stopped by user.\n"). Where there are several workers it ends the one
/// that calls it, and On_workers() does the rest.
[[noreturn]] void End_by_stop();

/// Returns while no stop is asked for; otherwise ends the run by an exception.
inline void Check_for_stop_signal() {
  const Run_control& control = This_control();
  if (control.stop.load(std::memory_order_relaxed) ||
      control.abandoned.load(std::memory_order_relaxed)) [[unlikely]]
    End_by_stop();
}

/// The poll of the long stages: only a stop at once ends the run here.
inline void Check_inside_long_stage() {
  const Run_control& control = This_control();
  if (control.stop_at_once.load(std::memory_order_relaxed) ||
      control.abandoned.load(std::memory_order_relaxed)) [[unlikely]]
    End_by_stop();
}

}  // namespace external_control
