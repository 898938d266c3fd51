#pragma once

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

  [[nodiscard]] unsigned Load_mode() const { return static_cast<unsigned char>(mode) % 3; }
};

Archive Archive_of(std::string_view bytes);
std::string Bytes_of(const Archive& archive);

/// The archive of a directory and what is in its subdirectories; of these only the one of k, if
/// there are several.
Archive Archive_of_dir(const std::string& directory, char mode, unsigned k);

/// A directory of its own in memory-backed space, which takes the form of archives in turn.
class Stage {
 public:
  Stage();
  ~Stage();
  Stage(const Stage&) = delete;
  Stage& operator=(const Stage&) = delete;

  [[nodiscard]] const std::string& Path() const { return path_; }
  /// Makes what the archive tells, as far as its paths are good: at most one directory deep, no
  /// "..", and links that lead nowhere but into the directory or to /dev/zero. Of entries with the
  /// same path the first one counts.
  void Set_up(const Archive& archive);
  /// Takes all of it away again.
  void Clear();

 private:
  void Make(const Archive::Entry& entry, const std::string& path);

  std::string path_;
  int root_ = -1;
  std::vector<std::pair<std::string, bool>> made_;  ///< and whether it is a directory
};
