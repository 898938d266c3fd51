#pragma once

#include <algorithm>
#include <concepts>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

#include "foundation/io/Descriptor.h"

namespace gns {

/// Writes one text file in big blocks. The only door through which files are written.
///
/// Opens the path with truncation. A failure to open, write or close never throws: it is noted
/// among the file faults, once per file, and what is written after it is dropped.
class Text_writer {
 public:
  explicit Text_writer(std::string path);
  ~Text_writer();
  Text_writer(const Text_writer&) = delete;
  Text_writer& operator=(const Text_writer&) = delete;

  Text_writer& operator<<(std::string_view text) {
    if (text.size() > capacity - used_) return Write_across(text);
    std::copy_n(text.data(), text.size(), buffer_.get() + used_);
    used_ += text.size();
    return *this;
  }
  Text_writer& operator<<(char c) {
    if (used_ == capacity) Flush();
    buffer_[used_++] = c;
    return *this;
  }
  /// Plain decimal digits.
  template <std::integral Integer>
  Text_writer& operator<<(Integer value) {
    return Write_integer(value);
  }
  /// Six significant digits in the default notation of formatted output.
  Text_writer& operator<<(double value);

  /// Flushes and closes; true if the whole file was written.
  bool Close();

 private:
  static constexpr std::size_t capacity = std::size_t{1} << 16U;
  static constexpr std::size_t longest_number = 32;

  Text_writer& Write_across(std::string_view text);
  Text_writer& Write_integer(std::int64_t value);
  void Write_block(const char* data, std::size_t size);
  void Flush();
  void Fail(const char* action);

  std::string path_;
  std::unique_ptr<char[]> buffer_;
  std::size_t used_ = 0;
  Descriptor file_;  ///< not open if something failed
  bool whole_ = true;
};

}  // namespace gns
