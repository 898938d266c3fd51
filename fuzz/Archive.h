#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

/// A directory as a string of bytes, so that a fuzzer can change it. Every string is an archive:
///
///     MODE  then for each entry  0x1e KIND PATH '\n' CONTENTS
///
/// MODE is a byte that tells how the directory is loaded.
struct Archive {
  /// Of an entry: 'd' a directory, 'p' a pipe, 'l' a link to the path that its contents tell, and
  /// anything else a file.
  struct Entry {
    char kind = 'f';
    std::string path;
    std::string contents;
  };

  char mode = 0;
  std::vector<Entry> entries;
};

Archive Archive_of(std::string_view bytes);
std::string Bytes_of(const Archive& archive);

/// A directory of its own in memory-backed space, which takes the form of archives in turn.
class Stage {
 public:
  Stage();
  ~Stage() { std::filesystem::remove_all(root_); }
  Stage(const Stage&) = delete;
  Stage& operator=(const Stage&) = delete;

  [[nodiscard]] std::string Path() const { return root_.string(); }
  /// Makes what the archive tells in place of what is there, as far as its paths are good: at most
  /// one directory deep, no "..", and links that lead nowhere but into the directory or to
  /// /dev/zero. Of entries with the same path the first one counts.
  void Set_up(const Archive& archive);

 private:
  std::filesystem::path root_;
};
