#include "cli/Live_display.h"

#include <sys/ioctl.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <new>
#include <string>
#include <vector>

#include "cli/State_lines.h"
#include "control/Clique_find_ext_cont.h"
#include "foundation/Environment.h"

namespace gns {

namespace {

bool Can_rewrite() {
  return ::isatty(STDERR_FILENO) == 1 && Environment_variable("TERM") != "dumb";
}

/// What is shown, line by line: the place for further figures.
std::vector<std::string> Display_lines(const Stopwatch& watch) {
  std::vector<std::string> lines = State_lines();
  const external_control::Progress& progress = external_control::PROGRESS;
  const auto add_count = [&lines](const char* what, std::uint64_t count) {
    if (count > 0) lines.push_back(what + (" so far: " + std::to_string(count)));
  };
  const std::uint64_t failed = progress.failed_in_a_row.load();
  if (failed > 0)
    lines.push_back("nodes left: " + std::to_string(progress.nodes_left.load()) +
                    ", failed in a row: " + std::to_string(failed));
  add_count("cliques", progress.cliques_found.load());
  add_count("k-cliques", progress.k_cliques_found.load());
  lines.push_back(Resources_used(watch));
  return lines;
}

/// The lines that are shown now, at the end of the terminal.
class Screen {
 public:
  /// Replaces them; the first one is set off by colour.
  void Draw(std::vector<std::string> lines) {
    const auto [height, width] = Size();
    lines.resize(std::min<std::size_t>(lines.size(), height - 1));
    std::string text = To_the_top();
    for (std::size_t i = 0; i < lines.size(); ++i) {
      const bool highlighted = i == 0 && coloured_;
      text += highlighted ? "\x1b[1;36m" : "";
      text += ' ' + lines[i].substr(0, width - 2);
      text += highlighted ? "\x1b[0m\x1b[K\n" : "\x1b[K\n";
    }
    text += "\x1b[J";
    Write(text);
    shown_ = lines.size();
  }

  void Erase() {
    if (shown_ > 0) Write(To_the_top() + "\x1b[J");
    shown_ = 0;
  }

 private:
  struct Lines_and_columns {
    std::size_t height = 24;
    std::size_t width = 80;
  };

  static Lines_and_columns Size() {
    struct winsize size = {};
    if (::ioctl(STDERR_FILENO, TIOCGWINSZ, &size) != 0 || size.ws_row < 2 || size.ws_col < 2)
      return {};
    return {size.ws_row, size.ws_col};
  }

  [[nodiscard]] std::string To_the_top() const {
    return shown_ == 0 ? "\r" : "\r\x1b[" + std::to_string(shown_) + "A";
  }

  /// A terminal that doesn't take the text is no reason to end the run.
  static void Write(const std::string& text) {
    if (::write(STDERR_FILENO, text.data(), text.size()) < 0) return;
  }

  std::size_t shown_ = 0;
  bool coloured_ = Environment_variable("NO_COLOR").empty();
};

}  // namespace

Live_display::Live_display(const Stopwatch& watch) : watch_(watch) {
  if (Can_rewrite()) thread_ = std::jthread([this](const std::stop_token& end) { Show(end); });
}

void Live_display::Show(const std::stop_token& end) {
  constexpr std::chrono::milliseconds interval(150);
  Screen screen;
  std::unique_lock guard(lock_);
  while (!ended_.wait_for(guard, end, interval, [&end] { return end.stop_requested(); })) {
    try {
      screen.Draw(Display_lines(watch_));
    } catch (const std::bad_alloc&) {
      continue;  // the run itself is about to meet the same end
    }
  }
  screen.Erase();
}

}  // namespace gns
