#pragma once

#include <unistd.h>

#include <utility>

namespace gns {

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
