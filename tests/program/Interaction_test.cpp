#include <poll.h>
#include <sys/ioctl.h>
#include <sys/stat.h>

#include <chrono>
#include <thread>

#include "Child.h"
#include "Linked_groups.h"

namespace gns {
namespace {

using Clock = std::chrono::steady_clock;

template <typename Condition>
void Wait_until(Condition condition) {
  const auto end = Clock::now() + std::chrono::seconds(60);
  while (!condition()) {
    ASSERT_LT(Clock::now(), end);
    std::this_thread::sleep_for(std::chrono::milliseconds(5));
  }
}

/// True while the process has a handler of its own for SIGINT.
bool Catches_interrupt(pid_t pid) {
  std::ifstream status("/proc/" + std::to_string(pid) + "/status");
  std::string word;
  while (status >> word && word != "SigCgt:") continue;
  std::uint64_t signals = 0;
  status >> std::hex >> signals;
  return (signals >> (SIGINT - 1U) & 1U) != 0;
}

TEST(Stop, EndsALongSearchWithinASecond) {
  const Temp_dir temp;
  temp.Write("hard", Linked_groups(66, 3));
  for (const int signal : {SIGINT, SIGTERM}) {
    const std::string out = "out" + std::to_string(signal);
    Child child(temp, {"-i", "hard", "-o", out});
    Wait_until([&] { return std::filesystem::exists(temp.Path(out + "/graph")); });
    child.Signal(signal);
    const auto asked = Clock::now();
    EXPECT_EQ(child.Wait(), 130);
    EXPECT_LT(Clock::now() - asked, std::chrono::seconds(1));
    EXPECT_EQ(child.Out(), "Process stopped by user.\n");
    EXPECT_EQ(child.Err(), "");
    EXPECT_TRUE(std::filesystem::exists(temp.Path(out + "/.unfinished")));
  }
}

/// A pipe in which a line goes on as long as somebody reads it.
class Endless_line {
 public:
  explicit Endless_line(const std::string& path)
      : pipe_(::mkfifo(path.c_str(), 0600) == 0
                  ? ::open(path.c_str(), O_RDWR | O_NONBLOCK | O_CLOEXEC)
                  : -1),
        writer_([this](const std::stop_token& end) {
          const std::string block(4096, 'x');
          while (!end.stop_requested())
            if (::write(pipe_, block.data(), block.size()) < 0)
              std::this_thread::sleep_for(std::chrono::milliseconds(1));
        }) {}
  Endless_line(const Endless_line&) = delete;
  Endless_line& operator=(const Endless_line&) = delete;
  ~Endless_line() {
    writer_ = {};
    ::close(pipe_);
  }

 private:
  int pipe_;
  std::jthread writer_;
};

/// What the program may wait for: somebody who opens a pipe, somebody who writes to it, the end of
/// a line.
TEST(Stop, EndsTheWaitForInput) {
  const Temp_dir temp;
  ASSERT_EQ(::mkfifo(temp.Path("unopened").c_str(), 0600), 0);
  ASSERT_EQ(::mkfifo(temp.Path("silent").c_str(), 0600), 0);
  const int silent = ::open(temp.Path("silent").c_str(), O_RDWR | O_CLOEXEC);
  ASSERT_EQ(::write(silent, "a b\nc", 5), 5);
  const Endless_line endless(temp.Path("endless"));
  for (const std::string input : {"unopened", "silent", "endless"}) {
    Child child(temp, {"-i", input, "-o", "out"});
    Wait_until([&] { return Catches_interrupt(child.Pid()); });
    std::this_thread::sleep_for(std::chrono::milliseconds(100));
    child.Signal(SIGINT);
    const auto asked = Clock::now();
    EXPECT_EQ(child.Wait(), 130) << input;
    EXPECT_LT(Clock::now() - asked, std::chrono::seconds(1)) << input;
    EXPECT_FALSE(std::filesystem::exists(temp.Path("out")));
  }
  ::close(silent);
}

TEST(Stop, IgnoredSignalStaysIgnored) {
  const Temp_dir temp;
  ASSERT_EQ(::mkfifo(temp.Path("pipe").c_str(), 0600), 0);
  Child child(temp, {"-i", "pipe"}, [] { ::signal(SIGINT, SIG_IGN); });
  const int pipe = ::open(temp.Path("pipe").c_str(), O_WRONLY);
  child.Signal(SIGINT);
  EXPECT_EQ(::write(pipe, "a b\n", 4), 4);
  ::close(pipe);
  EXPECT_EQ(child.Wait(), 0);
}

TEST(Stop, SecondSignalEndsAtOnce) {
  const Temp_dir temp;
  int ends[2];
  ASSERT_EQ(::pipe2(ends, O_NONBLOCK | O_CLOEXEC), 0);
  const std::string block(4096, 'x');
  while (::write(ends[1], block.data(), block.size()) > 0) continue;
  // Once stopped, the program waits for somebody who reads its message.
  const Endless_line endless(temp.Path("endless"));
  Child child(temp, {"-i", "endless"}, [&] {
    ::fcntl(ends[1], F_SETFL, 0);
    ::dup2(ends[1], STDOUT_FILENO);
  });
  Wait_until([&] { return Catches_interrupt(child.Pid()); });
  child.Signal(SIGINT);
  Wait_until([&] { return !Catches_interrupt(child.Pid()); });
  child.Signal(SIGTERM);
  EXPECT_EQ(child.Wait(), -SIGTERM);
  ::close(ends[0]);
  ::close(ends[1]);
}

/// A pseudo terminal for the standard error of a child.
class Terminal {
 public:
  Terminal() : master_(::posix_openpt(O_RDWR | O_NOCTTY | O_CLOEXEC)) {
    const struct winsize size = {10, 20, 0, 0};
    if (::grantpt(master_) != 0 || ::unlockpt(master_) != 0 || Open() < 0 ||
        ::ioctl(master_, TIOCSWINSZ, &size) != 0)
      throw std::runtime_error("no pseudo terminal");
  }
  Terminal(const Terminal&) = delete;
  Terminal& operator=(const Terminal&) = delete;
  ~Terminal() { ::close(master_); }

  [[nodiscard]] int Open() const { return ::open(::ptsname(master_), O_RDWR | O_NOCTTY); }

  /// Adds what has arrived to Text().
  void Read() {
    struct pollfd ready = {master_, POLLIN, 0};
    char buffer[4096];
    while (::poll(&ready, 1, 0) > 0) {
      const ssize_t got = ::read(master_, buffer, sizeof buffer);
      if (got <= 0) return;
      text_.append(buffer, static_cast<std::size_t>(got));
    }
  }
  [[nodiscard]] bool Has(const std::string& part) const {
    return text_.find(part) != std::string::npos;
  }
  [[nodiscard]] const std::string& Text() const { return text_; }

 private:
  int master_;
  std::string text_;
};

/// What a long search shows on a terminal until it is stopped.
std::string Shown(const char* variable, const char* value, const std::string& awaited) {
  const Temp_dir temp;
  temp.Write("hard", Linked_groups(66, 3));
  Terminal terminal;
  Child child(temp, {"-i", "hard", "-o", "out"}, [&] {
    ::unsetenv("NO_COLOR");
    ::setenv("TERM", "xterm", 1);
    ::setenv(variable, value, 1);
    ::dup2(terminal.Open(), STDERR_FILENO);
  });
  Wait_until([&] {
    terminal.Read();
    return terminal.Has(awaited) && std::filesystem::exists(temp.Path("out/graph"));
  });
  child.Signal(SIGINT);
  EXPECT_EQ(child.Wait(), 130);
  EXPECT_EQ(child.Out(), "Process stopped by user.\n");
  terminal.Read();
  return terminal.Text();
}

TEST(LiveDisplay, ShowsProgressAndErasesIt) {
  const std::string shown = Shown("TERM", "xterm", "\x1b[3A");
  EXPECT_NE(shown.find("\x1b[1;36m Locating cliques:\x1b[0m\x1b[K\r\n 66 of 66 nodes to\x1b[K\r\n"),
            std::string::npos)
      << shown;
  EXPECT_TRUE(shown.ends_with("A\x1b[J")) << shown;
}

TEST(LiveDisplay, LeavesColourOutWhereItIsNotWanted) {
  const std::string shown = Shown("NO_COLOR", "1", "\x1b[3A");
  EXPECT_NE(shown.find("\r Locating cliques:\x1b[K\r\n"), std::string::npos) << shown;
  EXPECT_EQ(shown.find('m' + std::string("\x1b")), std::string::npos) << shown;
  EXPECT_EQ(Shown("TERM", "dumb", ""), "");
}

/// A wrong line, a name and a path can't give the terminal commands; a file gets them as they are.
TEST(Terminal, GetsNoControlCharacters) {
  const Temp_dir temp;
  temp.Write("odd", "a b\n\x1b[31m\xC3\xA9\x9b\n");
  Child in_file(temp, {"-i", "odd"});
  EXPECT_EQ(in_file.Wait(), 1);
  EXPECT_NE(in_file.Out().find("\n\x1b[31m\xC3\xA9\x9b\n"), std::string::npos);
  Terminal terminal;
  Child child(temp, {"-i", "odd", "-o", "\x1b]0;"}, [&] {
    ::setenv("TERM", "dumb", 1);
    ::dup2(terminal.Open(), STDOUT_FILENO);
    ::dup2(STDOUT_FILENO, STDERR_FILENO);
  });
  EXPECT_EQ(child.Wait(), 1);
  terminal.Read();
  const std::string& text = terminal.Text();
  EXPECT_TRUE(terminal.Has("\n\\x1b[31m\xC3\xA9\\x9b\r\nvorlane: odd, line 2, column")) << text;
  EXPECT_EQ(text.find("ERROR", text.find("ERROR") + 1), std::string::npos) << text;  // told once
  EXPECT_FALSE(terminal.Has("\x1b")) << text;
}

TEST(Progress, IsTellableInALog) {
  const Temp_dir temp;
  temp.Write("hard", Linked_groups(66, 3));
  const std::pair<const char*, const char*> cases[] = {
      {"--progress=0.05", "vorlane: Locating cliques: 66 of 66 nodes to do (0.00% done), "},
      {"--progress=json,0.05", R"(,"report":["Locating cliques:","66 of 66 nodes)"}};
  for (const auto& [option, awaited] : cases) {
    Child child(temp, {"-i", "hard", "-o", option + 10, option});
    Wait_until([&, text = awaited] { return child.Err().find(text) != std::string::npos; });
    child.Signal(SIGINT);
    EXPECT_EQ(child.Wait(), 130);
    EXPECT_TRUE(child.Err().ends_with("\n") && !child.Err().ends_with("\n\n")) << child.Err();
  }
}

}  // namespace
}  // namespace gns
