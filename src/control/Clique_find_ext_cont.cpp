#include "control/Clique_find_ext_cont.h"

#include <stdexcept>
#include <utility>

namespace external_control {

namespace {

class Plain_report : public Report {
 public:
  explicit Plain_report(std::string text) : text_(std::move(text)) {}
  [[nodiscard]] std::string Text() const override { return text_; }

 private:
  std::string text_;
};

}  // namespace

std::atomic<bool> STOP_CURRENT_PROCESS = false;
std::atomic<bool> STOP_AT_ONCE = false;
Report_variable CURRENT_STATE_REPORT;
Report_variable ERROR_MESSAGE;
Report_variable JAVA_CPP_TRANSLATE_STATE_REPORT;
std::atomic<void (*)()> BEFORE_UNWINDING = nullptr;
Progress PROGRESS;

static_assert(std::atomic<bool>::is_always_lock_free, "the flag is set from signal handlers");

Report_variable& Report_variable::operator=(std::string text) {
  return *this = std::make_shared<const Plain_report>(std::move(text));
}

Report_variable& Report_variable::operator=(std::shared_ptr<const Report> report) {
  const std::lock_guard guard(lock_);
  report_.swap(report);
  return *this;
}

std::string Report_variable::Text() const {
  std::shared_ptr<const Report> report;
  {
    const std::lock_guard guard(lock_);
    report = report_;
  }
  return report ? report->Text() : std::string();
}

void Progress::Reset() {
  for (std::atomic<std::uint64_t>* const figure :
       {&cliques_found, &nodes_left, &failed_in_a_row, &k_cliques_found, &k_cliques_visited})
    figure->store(0, std::memory_order_relaxed);
}

void End_by_stop() {
  CURRENT_STATE_REPORT = std::string(" Process stopped by user.\n");
  if (void (*const leave)() = BEFORE_UNWINDING.load(); leave != nullptr) leave();
  throw std::logic_error("Process stopped by user.\n");
}

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
