#pragma once

#include <cstddef>
#include <cstdlib>
#include <memory>
#include <string>
#include <string_view>

#include "foundation/io/Byte_source.h"
#include "foundation/io/File_bytes.h"
#include "foundation/text/Character_set.h"

namespace gns {

/// Reads a text file line by line, in big blocks; lines may be of any length and hold any bytes.
class Line_reader {
 public:
  using Source = File_bytes::Source;
  using Poll = File_bytes::Poll;

  /// Of a file; throws as File_bytes does. A line ends at each of the characters `line_ends`.
  explicit Line_reader(std::string path, Source source = Source::any_file,
                       Character_set line_ends = {'\n'}, Poll poll = nullptr);
  /// Of bytes from anywhere.
  explicit Line_reader(std::unique_ptr<Byte_source> bytes, Character_set line_ends = {'\n'});
  ~Line_reader();
  Line_reader(const Line_reader&) = delete;
  Line_reader& operator=(const Line_reader&) = delete;

  /// Takes the next line, without its end; the last one may lack it. The text stays valid until
  /// the next call. False at the end of the file; throws Xerror_msg if reading fails.
  bool Next(std::string_view& line);

  /// The next bytes, without taking them: `size` of them, or what is left of the file. Valid until
  /// the next call. Throws Xerror_msg if reading fails.
  std::string_view Peek(std::size_t size);

  /// What has been read of the file, but not taken yet. Valid until the next call.
  [[nodiscard]] std::string_view Held() const {
    return {buffer_.data.get() + start_, end_ - start_};
  }
  /// Takes the front of what is held: `size` bytes, which are `lines` whole lines.
  void Take(std::size_t size, std::size_t lines) {
    start_ += size;
    lines_taken_ += lines;
  }

  /// How many lines have been taken.
  [[nodiscard]] std::size_t Lines_taken() const { return lines_taken_; }

  /// The size of the file when it was opened, in bytes; 0 of what is no file.
  [[nodiscard]] std::size_t File_size() const { return file_size_; }

  /// True if the line that was taken last had its end.
  [[nodiscard]] bool Terminated() const { return terminated_; }

 private:
  friend class Kept_buffer;

  struct Free {
    void operator()(char* block) const { std::free(block); }
  };
  /// What has been read stands in it, up to a longest line.
  struct Buffer {
    void Grow(std::size_t size);

    std::unique_ptr<char[], Free> data;
    std::size_t capacity = 0;
  };

  void Take_buffer(std::size_t size);
  void Make_room();
  bool Fill();

  std::unique_ptr<Byte_source> bytes_;
  Character_set line_ends_;
  std::size_t file_size_ = 0;
  Buffer buffer_;
  std::size_t start_ = 0;  ///< unread bytes: start_ up to end_
  std::size_t end_ = 0;
  std::size_t lines_taken_ = 0;
  bool terminated_ = false;
  bool at_end_ = false;  ///< a terminal would begin anew after its end
};

/// While it lives, each reader of its thread goes on with the memory of the one before, which the
/// system would have to make ready again. For many files in a row.
class Kept_buffer {
 public:
  Kept_buffer();
  ~Kept_buffer();
  Kept_buffer(const Kept_buffer&) = delete;
  Kept_buffer& operator=(const Kept_buffer&) = delete;

 private:
  friend class Line_reader;

  Line_reader::Buffer buffer_;
  Kept_buffer* before_;
};

}  // namespace gns
