#pragma once

#include <dirent.h>

#include <string>

namespace gns {

/// Tells what stands in a directory, name by name, in no order and without "." and "..".
class Dir_listing {
 public:
  explicit Dir_listing(const std::string& path);
  ~Dir_listing();
  Dir_listing(const Dir_listing&) = delete;
  Dir_listing& operator=(const Dir_listing&) = delete;

  /// The next name, valid until the next call; null at the end, and where the listing fails.
  const char* Next();
  /// Why the listing failed, as a number of errno; 0 if it didn't.
  [[nodiscard]] int Error() const { return error_; }

 private:
  DIR* dir_;
  int error_ = 0;
};

}  // namespace gns
