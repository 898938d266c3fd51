#pragma once

#include <sys/mman.h>
#include <unistd.h>

#include <cstdlib>
#include <iostream>
#include <string>
#include <string_view>

/// The path of a file in memory that has these contents until the next call.
inline const std::string& File_with(std::string_view contents) {
  static const int file = memfd_create("fuzz", MFD_CLOEXEC);
  static const std::string path = "/proc/self/fd/" + std::to_string(file);
  if (ftruncate(file, 0) != 0 ||
      pwrite(file, contents.data(), contents.size(), 0) != static_cast<ssize_t>(contents.size()))
    std::abort();
  return path;
}

/// Ends the program, as a crash that the fuzzer keeps, if a reader's result isn't that of its plain
/// version.
inline void Expect_same(const std::string& result, const std::string& plain) {
  if (result == plain) return;
  std::cerr << "result: " << result << "\nplain:  " << plain << '\n';
  std::abort();
}
