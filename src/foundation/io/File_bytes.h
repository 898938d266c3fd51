#pragma once

#include <cstddef>
#include <string>

#include "foundation/io/Byte_source.h"
#include "foundation/io/Descriptor.h"

namespace gns {

/// The bytes of a file, a pipe or a device.
class File_bytes final : public Byte_source {
 public:
  /// What may stand at the path. Pipes and devices can let a reader wait for ever.
  enum class Source { any_file, regular_file };

  /// Called before each block is read, and several times a second while a pipe or device has
  /// nothing to give; what it throws leaves Read().
  using Poll = void (*)();

  /// Throws Xep_file_not_found if the file can't be opened, is a directory, or isn't what `source`
  /// admits. A pipe that nobody writes to yet is opened at once; its first bytes are what gets
  /// waited for.
  File_bytes(std::string path, Source source, Poll poll);
  /// Of a file that is open, and stays so; `name` is for messages.
  File_bytes(int number, std::string name, Poll poll);

  std::size_t Read(char* buffer, std::size_t size) override;

  /// The size of the file when it was opened, in bytes.
  [[nodiscard]] std::size_t File_size() const { return file_size_; }

 private:
  void Look_at(Source source);
  void Wait_for_more() const;

  std::string path_;
  Poll poll_;
  Descriptor opened_;
  int number_;
  bool regular_ = false;
  std::size_t file_size_ = 0;
};

}  // namespace gns
