#pragma once

#include <utility>

#include "foundation/io/File_system.h"

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
  /// False, with the reason in errno, if the system tells a failure; closed it is in any case.
  bool Close() {
    return !Is_open() || File_system::At_hand().Close(std::exchange(number_, -1)) == 0;
  }

 private:
  int number_;
};

}  // namespace gns
