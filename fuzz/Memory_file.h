#pragma once

#include <sys/mman.h>
#include <unistd.h>

#include <cstdlib>
#include <string>
#include <string_view>

/// A file in memory with a path, to be filled again and again.
class Memory_file {
 public:
  const std::string& Filled_with(std::string_view contents) {
    const auto size = static_cast<ssize_t>(contents.size());
    if (file_ < 0 || ftruncate(file_, 0) != 0 ||
        pwrite(file_, contents.data(), contents.size(), 0) != size)
      std::abort();
    return path_;
  }

 private:
  int file_ = memfd_create("fuzz", MFD_CLOEXEC);
  std::string path_ = "/proc/self/fd/" + std::to_string(file_);
};
