#include "foundation/io/Text_writer.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <charconv>
#include <utility>

#include "foundation/io/Descriptor.h"
#include "foundation/io/File_faults.h"

namespace gns {

Text_writer::Text_writer(std::string path) : path_(std::move(path)), buffer_(new char[capacity]) {
  constexpr mode_t mode = 0666;
  file_ = Open_file(path_, O_WRONLY | O_CREAT | O_TRUNC, mode);
  if (file_ < 0) Fail("open");
}

Text_writer::~Text_writer() { Close(); }

/// Writes a text for which the block has no room left.
Text_writer& Text_writer::Write_across(std::string_view text) {
  Flush();
  if (text.size() <= capacity) return *this << text;
  Write_block(text.data(), text.size());
  return *this;
}

Text_writer& Text_writer::Write_integer(std::int64_t value) {
  if (capacity - used_ < longest_number) Flush();
  const auto result = std::to_chars(buffer_.get() + used_, buffer_.get() + capacity, value);
  used_ = static_cast<std::size_t>(result.ptr - buffer_.get());
  return *this;
}

Text_writer& Text_writer::operator<<(double value) {
  constexpr int significant_digits = 6;
  if (capacity - used_ < longest_number) Flush();
  const auto result = std::to_chars(buffer_.get() + used_, buffer_.get() + capacity, value,
                                    std::chars_format::general, significant_digits);
  used_ = static_cast<std::size_t>(result.ptr - buffer_.get());
  return *this;
}

bool Text_writer::Close() {
  Flush();
  if (file_ >= 0 && ::close(std::exchange(file_, -1)) != 0) Fail("close");
  return whole_;
}

void Text_writer::Flush() { Write_block(buffer_.get(), std::exchange(used_, 0)); }

void Text_writer::Write_block(const char* data, std::size_t size) {
  while (size > 0 && file_ >= 0) {
    const ssize_t written = ::write(file_, data, size);
    if (written >= 0) {
      data += written;
      size -= static_cast<std::size_t>(written);
    } else if (errno != EINTR) {
      Fail("write");
    }
  }
}

void Text_writer::Fail(const char* action) {
  Note_file_fault(path_, action, errno);
  whole_ = false;
  if (file_ >= 0) ::close(std::exchange(file_, -1));
}

}  // namespace gns
