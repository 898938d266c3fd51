#include "cli/terminal/Progress_lines.h"

#include <poll.h>
#include <unistd.h>

#include <new>

#include "cli/terminal/Progress_figures.h"

namespace gns {

void Progress_lines::Show(const Stopwatch& watch) {
  const Progress_figures figures = Current_figures(watch, time_left_);
  const std::string line = (json_ ? In_json(figures) : "vorlane: " + In_one_line(figures)) + "\n";
  // A pipe that nobody reads would hold up the end of the run; the line is left out instead.
  struct pollfd ready = {STDERR_FILENO, POLLOUT, 0};
  if (::poll(&ready, 1, 0) <= 0) return;
  if (::write(STDERR_FILENO, line.data(), line.size()) < 0) return;
}

void Progress_lines::End(const Stopwatch& watch) {
  if (!asked_for_) return;
  try {
    Show(watch);
  } catch (const std::bad_alloc&) {
    return;  // the run has met the same end
  }
}

}  // namespace gns
