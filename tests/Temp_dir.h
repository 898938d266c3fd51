#pragma once

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <string>

namespace gns {

/// A directory of its own for one test, deleted with all that is in it at the end.
class Temp_dir {
 public:
  Temp_dir() {
    std::string name = ::testing::TempDir() + "vorlane_XXXXXX";
    if (mkdtemp(name.data()) == nullptr) throw std::runtime_error("no directory for the test");
    path_ = std::filesystem::canonical(name);
  }
  Temp_dir(const Temp_dir&) = delete;
  Temp_dir& operator=(const Temp_dir&) = delete;
  ~Temp_dir() {
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
  }

  /// The path of something inside; without a name, of the directory itself.
  [[nodiscard]] std::string Path(const std::string& name = "") const {
    return name.empty() ? path_.string() : (path_ / name).string();
  }

  /// Writes a file and yields its path.
  std::string Write(const std::string& name, const std::string& contents) const {
    std::ofstream(Path(name), std::ios::binary) << contents;
    return Path(name);
  }

  /// The contents of a file inside.
  [[nodiscard]] std::string Read(const std::string& name) const {
    std::ifstream file(Path(name), std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
  }

 private:
  std::filesystem::path path_;
};

}  // namespace gns
