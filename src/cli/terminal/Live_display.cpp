#include "cli/terminal/Live_display.h"

#include <unistd.h>

#include <chrono>
#include <new>

#include "cli/Side_words.h"
#include "cli/terminal/Progress_lines.h"
#include "cli/terminal/Screen.h"
#include "foundation/Environment.h"

namespace gns {

namespace {

bool Can_rewrite() {
  return ::isatty(STDERR_FILENO) == 1 && Environment_variable("TERM") != "dumb";
}

}  // namespace

Live_display::Live_display(const Stopwatch& watch, const Progress_option& option) : watch_(watch) {
  using Form = Progress_option::Form;
  constexpr double interval_on_screen = 0.15;
  if (option.form == Form::none) return;
  const bool on_screen = option.form == Form::automatic && Can_rewrite();
  if (on_screen)
    view_ = std::make_unique<Screen>();
  else
    view_ =
        std::make_unique<Progress_lines>(option.form == Form::json, option.form != Form::automatic);
  const double interval = on_screen ? interval_on_screen : option.interval;
  thread_ = std::jthread([this, interval](const std::stop_token& end) { Show(end, interval); });
}

void Live_display::Tell(const std::string& text) {
  const std::scoped_lock guard(lock_);
  if (view_ != nullptr) view_->Step_aside();
  gns::Tell(text);
}

void Live_display::Show(const std::stop_token& end, double interval) {
  std::unique_lock guard(lock_);
  while (!ended_.wait_for(guard, end, std::chrono::duration<double>(interval),
                          [&end] { return end.stop_requested(); })) {
    try {
      view_->Show(watch_);
    } catch (const std::bad_alloc&) {
      continue;  // the run itself is about to meet the same end
    }
  }
  view_->End(watch_);
}

}  // namespace gns
