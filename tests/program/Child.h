#pragma once

#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <functional>
#include <string>
#include <vector>

#include "Temp_dir.h"

namespace gns {

using Words = std::vector<std::string>;

/// The program, running in the directory of a test with its output going to two files.
class Child {
 public:
  /// `in_child` is called in the child in front of the program.
  Child(const Temp_dir& temp, const Words& arguments, const std::function<void()>& in_child = {})
      : temp_(temp), pid_(::fork()) {
    if (pid_ != 0) return;
    Redirect(temp.Path(".out"), STDOUT_FILENO);
    Redirect(temp.Path(".err"), STDERR_FILENO);
    std::vector<char*> argv{const_cast<char*>("vorlane")};
    for (const std::string& word : arguments) argv.push_back(const_cast<char*>(word.c_str()));
    argv.push_back(nullptr);
    if (::chdir(temp.Path().c_str()) == 0) {
      if (in_child) in_child();
      ::execv(VORLANE_PROGRAM, argv.data());
    }
    ::_exit(127);
  }
  Child(const Child&) = delete;
  Child& operator=(const Child&) = delete;
  ~Child() {
    if (pid_ <= 0) return;
    ::kill(pid_, SIGKILL);
    Wait();
  }

  static void Redirect(const std::string& path, int descriptor) {
    constexpr mode_t mode = 0600;
    ::dup2(::open(path.c_str(), O_WRONLY | O_CREAT | O_TRUNC, mode), descriptor);
  }

  void Signal(int number) const { ::kill(pid_, number); }

  /// The exit code, or the negative number of the signal that ended it.
  int Wait() {
    int status = 0;
    ::waitpid(pid_, &status, 0);
    pid_ = 0;
    return WIFEXITED(status) ? WEXITSTATUS(status) : -WTERMSIG(status);
  }

  [[nodiscard]] pid_t Pid() const { return pid_; }
  [[nodiscard]] std::string Out() const { return temp_.Read(".out"); }
  [[nodiscard]] std::string Err() const { return temp_.Read(".err"); }

 private:
  const Temp_dir& temp_;
  pid_t pid_;
};

}  // namespace gns
