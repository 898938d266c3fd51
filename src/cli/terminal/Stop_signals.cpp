#include "cli/terminal/Stop_signals.h"

#include <atomic>
#include <csignal>

#include "control/Clique_find_ext_cont.h"

namespace gns {

namespace {

constexpr int stop_signals[] = {SIGINT, SIGTERM};
std::atomic<bool> signal_came = false;

/// Without SA_RESTART: a call that waits for a pipe is to end.
void Set_handler(int number, void (*handler)(int)) {
  struct sigaction action = {};
  action.sa_handler = handler;
  ::sigaction(number, &action, nullptr);  // fails for unknown signals only
}

/// A signal that is ignored from the start, as by `nohup` or in a background job, stays so.
bool Is_ignored(int number) {
  struct sigaction action = {};
  return ::sigaction(number, nullptr, &action) == 0 && action.sa_handler == SIG_IGN;
}

void On_stop_signal(int /*number*/) {
  signal_came.store(true);
  Stop_at_once();
  for (const int number : stop_signals)
    if (!Is_ignored(number)) Set_handler(number, SIG_DFL);
}

}  // namespace

void Handle_signals() {
  Set_handler(SIGPIPE, SIG_IGN);
  Set_handler(SIGXFSZ, SIG_IGN);
  for (const int number : stop_signals)
    if (!Is_ignored(number)) Set_handler(number, On_stop_signal);
}

bool Stop_signal_came() { return signal_came.load(); }

}  // namespace gns
