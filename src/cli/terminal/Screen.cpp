#include "cli/terminal/Screen.h"

#include <sys/ioctl.h>
#include <unistd.h>

#include <algorithm>
#include <vector>

#include "cli/terminal/Progress_figures.h"
#include "foundation/Environment.h"

namespace gns {

namespace {

struct Lines_and_columns {
  std::size_t height = 24;
  std::size_t width = 80;
};

Lines_and_columns Terminal_size() {
  struct winsize size = {};
  if (::ioctl(STDERR_FILENO, TIOCGWINSZ, &size) != 0 || size.ws_row < 2 || size.ws_col < 2)
    return {};
  return {size.ws_row, size.ws_col};
}

/// A terminal that doesn't take the text is no reason to end the run.
void Write(const std::string& text) {
  if (::write(STDERR_FILENO, text.data(), text.size()) < 0) return;
}

}  // namespace

Screen::Screen() : coloured_(Environment_variable("NO_COLOR").empty()) {}

void Screen::Show(const Stopwatch& watch) {
  const auto [height, width] = Terminal_size();
  std::vector<std::string> lines = In_lines(Current_figures(watch, time_left_), width - 2);
  lines.resize(std::min<std::size_t>(lines.size(), height - 1));
  std::string text = To_the_top();
  for (std::size_t i = 0; i < lines.size(); ++i) {
    // The first line is set off.
    const bool highlighted = i == 0 && coloured_;
    text += highlighted ? "\x1b[1;36m" : "";
    text += ' ' + lines[i];
    text += highlighted ? "\x1b[0m\x1b[K\n" : "\x1b[K\n";
  }
  text += "\x1b[J";
  Write(text);
  shown_ = lines.size();
}

void Screen::Step_aside() {
  if (shown_ > 0) Write(To_the_top() + "\x1b[J");
  shown_ = 0;
}

void Screen::End(const Stopwatch& /*watch*/) { Step_aside(); }

std::string Screen::To_the_top() const {
  return shown_ == 0 ? "\r" : "\r\x1b[" + std::to_string(shown_) + "A";
}

}  // namespace gns
