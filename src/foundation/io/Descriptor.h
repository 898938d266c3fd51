#pragma once

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <string>
#include <utility>

namespace gns {

/// Opens as the system's openat does, again where a signal comes between, as it can on file systems
/// of a network. Yields the number of the descriptor, or -1 with the reason in errno.
inline int Open_file(const std::string& path, int flags, mode_t mode = 0,
                     int directory = AT_FDCWD) {
  int file = -1;
  do {
    file = ::openat(directory, path.c_str(), flags | O_CLOEXEC, mode);
  } while (file < 0 && errno == EINTR);
  return file;
}

/// A file descriptor, closed at the end of its owner's life. A number below 0 stands for a file
/// that could not be opened.
class Descriptor {
 public:
  explicit Descriptor(int number) : number_(number) {}
  ~Descriptor() { Close(); }
  Descriptor(const Descriptor&) = delete;
  Descriptor& operator=(const Descriptor&) = delete;

  [[nodiscard]] int Number() const { return number_; }
  [[nodiscard]] bool Is_open() const { return number_ >= 0; }
  void Close() {
    if (Is_open()) ::close(std::exchange(number_, -1));
  }

 private:
  int number_;
};

}  // namespace gns
