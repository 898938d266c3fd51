#include "foundation/io/Line_reader.h"

#include <algorithm>
#include <cstring>
#include <new>
#include <utility>

namespace gns {

namespace {

constexpr std::size_t largest_first_block = std::size_t{1} << 18U;
constexpr std::size_t smallest_block = std::size_t{1} << 12U;
constexpr std::size_t longest_read = std::size_t{1} << 20U;  // inside a long line: between polls

}  // namespace

Line_reader::Line_reader(std::string path, Source source, Character_set line_ends, Poll poll)
    : line_ends_(line_ends) {
  auto file = std::make_unique<File_bytes>(std::move(path), source, poll);
  file_size_ = file->File_size();
  bytes_ = std::move(file);
  Resize_buffer(std::clamp(file_size_ + 1, smallest_block, largest_first_block));
}

Line_reader::Line_reader(std::unique_ptr<Byte_source> bytes, Character_set line_ends)
    : bytes_(std::move(bytes)), line_ends_(line_ends) {
  Resize_buffer(largest_first_block);
}

bool Line_reader::Next(std::string_view& line) {
  std::size_t searched = start_;
  for (;;) {
    const char* const line_end = line_ends_.Find_in({buffer_.get() + searched, end_ - searched});
    if (line_end != nullptr) {
      line = {buffer_.get() + start_, line_end};
      start_ += line.size() + 1;
      ++lines_taken_;
      terminated_ = true;
      return true;
    }
    const std::size_t held = end_ - start_;
    if (!Fill()) break;
    searched = start_ + held;
  }
  if (start_ == end_) return false;
  line = {buffer_.get() + start_, end_ - start_};
  start_ = end_;
  ++lines_taken_;
  terminated_ = false;
  return true;
}

/// By realloc, which moves the pages of a long line instead of copying them.
void Line_reader::Resize_buffer(std::size_t capacity) {
  auto* const larger = static_cast<char*>(std::realloc(buffer_.get(), capacity));
  if (larger == nullptr) throw std::bad_alloc();
  static_cast<void>(buffer_.release());
  buffer_.reset(larger);
  capacity_ = capacity;
}

std::string_view Line_reader::Peek(std::size_t size) {
  while (end_ - start_ < size && Fill()) continue;
  return {buffer_.get() + start_, std::min(size, end_ - start_)};
}

/// Moves the unread bytes to the front, of a larger buffer if they fill this one.
void Line_reader::Make_room() {
  if (start_ == 0 && end_ < capacity_) return;
  const std::size_t held = end_ - start_;
  if (held == capacity_)
    Resize_buffer(capacity_ * 2);
  else
    std::memmove(buffer_.get(), buffer_.get() + start_, held);
  start_ = 0;
  end_ = held;
}

/// Reads more behind the unread bytes; false at the end of the file.
bool Line_reader::Fill() {
  if (at_end_) return false;
  Make_room();
  const std::size_t got =
      bytes_->Read(buffer_.get() + end_, std::min(capacity_ - end_, longest_read));
  end_ += got;
  at_end_ = got == 0;
  return !at_end_;
}

}  // namespace gns
