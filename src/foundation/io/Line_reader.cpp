#include "foundation/io/Line_reader.h"

#include <algorithm>
#include <cstring>
#include <new>
#include <utility>

namespace gns {

namespace {

constexpr std::size_t largest_first_buffer = std::size_t{1} << 18U;
constexpr std::size_t smallest_buffer = std::size_t{1} << 12U;
constexpr std::size_t longest_read = std::size_t{1} << 17U;  // stays in the cache till it is taken

constinit thread_local Kept_buffer* kept = nullptr;

}  // namespace

Line_reader::Line_reader(std::string path, Source source, Character_set line_ends, Poll poll)
    : line_ends_(line_ends) {
  auto file = std::make_unique<File_bytes>(std::move(path), source, poll);
  file_size_ = file->File_size();
  bytes_ = std::move(file);
  Take_buffer(std::clamp(file_size_ + 1, smallest_buffer, largest_first_buffer));
}

Line_reader::Line_reader(std::unique_ptr<Byte_source> bytes, Character_set line_ends)
    : bytes_(std::move(bytes)), line_ends_(line_ends) {
  Take_buffer(largest_first_buffer);
}

Line_reader::~Line_reader() {
  if (kept != nullptr && kept->buffer_.capacity < buffer_.capacity)
    std::swap(kept->buffer_, buffer_);
}

void Line_reader::Take_buffer(std::size_t size) {
  if (kept != nullptr) std::swap(kept->buffer_, buffer_);
  if (buffer_.capacity < size) buffer_.Grow(size);
}

bool Line_reader::Next(std::string_view& line) {
  std::size_t searched = start_;
  for (;;) {
    const char* const line_end =
        line_ends_.Find_in({buffer_.data.get() + searched, end_ - searched});
    if (line_end != nullptr) {
      line = {buffer_.data.get() + start_, line_end};
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
  line = {buffer_.data.get() + start_, end_ - start_};
  start_ = end_;
  ++lines_taken_;
  terminated_ = false;
  return true;
}

/// By realloc, which moves the pages of a long line instead of copying them.
void Line_reader::Buffer::Grow(std::size_t size) {
  auto* const larger = static_cast<char*>(std::realloc(data.get(), size));
  if (larger == nullptr) throw std::bad_alloc();
  static_cast<void>(data.release());
  data.reset(larger);
  capacity = size;
}

std::string_view Line_reader::Peek(std::size_t size) {
  while (end_ - start_ < size && Fill()) continue;
  return {buffer_.data.get() + start_, std::min(size, end_ - start_)};
}

/// Moves the unread bytes to the front where that costs less than what was read of them, and makes
/// the buffer larger if they fill it.
void Line_reader::Make_room() {
  const std::size_t held = end_ - start_;
  if (held <= start_) {
    std::memcpy(buffer_.data.get(), buffer_.data.get() + start_, held);
    start_ = 0;
    end_ = held;
  }
  if (end_ < buffer_.capacity) return;
  buffer_.Grow(buffer_.capacity * 2);
}

/// Reads more behind the unread bytes; false at the end of the file.
bool Line_reader::Fill() {
  if (at_end_) return false;
  Make_room();
  const std::size_t got =
      bytes_->Read(buffer_.data.get() + end_, std::min(buffer_.capacity - end_, longest_read));
  end_ += got;
  at_end_ = got == 0;
  return !at_end_;
}

Kept_buffer::Kept_buffer() : before_(std::exchange(kept, this)) {}
Kept_buffer::~Kept_buffer() { kept = before_; }

}  // namespace gns
