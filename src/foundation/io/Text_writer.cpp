#include "foundation/io/Text_writer.h"

#include <cerrno>
#include <charconv>
#include <utility>

#include "foundation/io/File_faults.h"
#include "foundation/io/File_system.h"

namespace gns {

namespace {

constexpr mode_t new_file_mode = 0666;

}  // namespace

Text_writer::Text_writer(std::string path)
    : path_(std::move(path)),
      buffer_(new char[capacity]),
      file_(Open_file(path_, O_WRONLY | O_CREAT | O_TRUNC, new_file_mode)) {
  if (!file_.Is_open()) Fail("open");
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
  if (!file_.Close()) Fail("close");
  return whole_;
}

void Text_writer::Flush() { Write_block(buffer_.get(), std::exchange(used_, 0)); }

void Text_writer::Write_block(const char* data, std::size_t size) {
  if (file_.Is_open() && !Write_all(file_.Number(), data, size)) Fail("write");
}

void Text_writer::Fail(const char* action) {
  Note_file_fault(path_, action, errno);
  whole_ = false;
  file_.Close();
}

}  // namespace gns
