#pragma once

#include <cstddef>
#include <span>
#include <string>

#include "foundation/io/Descriptor.h"

namespace gns::parts {

/// A file that is written aside and gets its name when it is whole and on the disk, whether another
/// one has it by then or not. One that never is leaves nothing.
class File_aside {
 public:
  /// Makes the file aside. Throws Xerror_msg, as all of it does, if the disk fails.
  explicit File_aside(std::string path);
  ~File_aside();
  File_aside(const File_aside&) = delete;
  File_aside& operator=(const File_aside&) = delete;

  void Write(std::span<const std::byte> bytes);
  void Finish();

 private:
  void Write_held();
  void Check(bool done, const char* action);

  std::string path_;
  std::string aside_;
  Descriptor file_;
  std::string held_;  ///< small pieces, until there is a block of them
  bool finished_ = false;
};

/// A small one of text.
void Write_text_aside(const std::string& path, const std::string& text);

/// Deletes what workers that are known to be gone have left aside in a folder.
void Delete_left_aside(const std::string& folder);

/// Whether files are brought to the disk before they count: not if the environment has
/// VORLANE_NO_SYNC.
bool Is_synced();

}  // namespace gns::parts
