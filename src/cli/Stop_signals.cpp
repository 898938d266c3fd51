#include "cli/Stop_signals.h"

#include <atomic>
#include <csignal>

#include "control/Clique_find_ext_cont.h"

namespace gns {

namespace {

std::atomic<bool> signal_came = false;

void Set_handler(int number, void (*handler)(int)) {
  static_cast<void>(std::signal(number, handler));  // fails for unknown signals only
}

void On_stop_signal(int /*number*/) {
  signal_came.store(true);
  Stop_process();
  Set_handler(SIGINT, SIG_DFL);
  Set_handler(SIGTERM, SIG_DFL);
}

}  // namespace

void Handle_signals() {
  external_control::STOP_INSIDE_LONG_STAGES.store(true);
  Set_handler(SIGPIPE, SIG_IGN);
  Set_handler(SIGXFSZ, SIG_IGN);
  Set_handler(SIGINT, On_stop_signal);
  Set_handler(SIGTERM, On_stop_signal);
}

bool Stop_signal_came() { return signal_came.load(); }

}  // namespace gns
