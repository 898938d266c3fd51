#pragma once

#include <atomic>
#include <cstdint>
#include <memory>
#include <mutex>
#include <string>
#include <string_view>

/// The channel between a run and the threads that watch it: a run pushes its state report and
/// polls the stop flag; any other thread pulls reports and may ask for a stop at any moment.
namespace external_control {

/// A state report that is composed when it is read. Text() is called from any thread.
class Report {
 public:
  virtual ~Report() = default;
  [[nodiscard]] virtual std::string Text() const = 0;
};

/// A text variable that one thread replaces while others copy it: a reader gets the old text or
/// the new one, whole. The lock is held for a pointer copy only.
class Report_variable {
 public:
  Report_variable& operator=(std::string text);
  Report_variable& operator=(std::shared_ptr<const Report> report);
  [[nodiscard]] std::string Text() const;
  /// As a text, from which it can be read and with which it can be compared.
  operator std::string() const { return Text(); }
  bool operator==(std::string_view text) const { return Text() == text; }

 private:
  mutable std::mutex lock_;
  std::shared_ptr<const Report> report_;
};

extern std::atomic<bool> STOP_CURRENT_PROCESS;
extern Report_variable CURRENT_STATE_REPORT;
extern Report_variable ERROR_MESSAGE;  ///< no stage writes it: always empty
extern Report_variable JAVA_CPP_TRANSLATE_STATE_REPORT;

/// Beside STOP_CURRENT_PROCESS: the stop is to be honoured inside the long stages too (reading,
/// sorting, percolation, writing), where otherwise it waits for the next stage.
extern std::atomic<bool> STOP_AT_ONCE;

/// Called at the poll that ends a run, if it is set, in front of the exception. A program that ends
/// with its run may leave from here: what is not unwound needs not be given back, and giving back
/// gigabytes takes a while.
extern std::atomic<void (*)()> BEFORE_UNWINDING;

/// How far the run has come, in figures; each is kept by its stage and read from any thread.
struct Progress {
  std::atomic<std::uint64_t> cliques_found = 0;
  std::atomic<std::uint64_t> nodes_left = 0;         ///< of a clique search, the one in hand too
  std::atomic<std::uint64_t> failed_in_a_row = 0;    ///< attempts of a time-limited search
  std::atomic<std::uint64_t> k_cliques_found = 0;    ///< at the k at hand
  std::atomic<std::uint64_t> k_cliques_visited = 0;  ///< whole ones and parts of them

  /// Back to zero, as at the start of a run.
  void Reset();
};
extern Progress PROGRESS;

/// Assigns the report of a stop, calls BEFORE_UNWINDING and throws
/// std::logic_error("Process stopped by user.\n").
[[noreturn]] void End_by_stop();

/// Returns while no stop is asked for; otherwise ends the run by an exception.
inline void Check_for_stop_signal() {
  if (STOP_CURRENT_PROCESS.load(std::memory_order_relaxed)) [[unlikely]]
    End_by_stop();
}

/// The poll of the long stages: only a stop at once ends the run here.
inline void Check_inside_long_stage() {
  if (STOP_AT_ONCE.load(std::memory_order_relaxed)) [[unlikely]]
    End_by_stop();
}

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
