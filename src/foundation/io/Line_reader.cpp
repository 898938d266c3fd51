#include "foundation/io/Line_reader.h"

#include <poll.h>

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <new>
#include <system_error>
#include <utility>

#include "foundation/Errors.h"
#include "foundation/io/File_system.h"

namespace gns {

namespace {

constexpr std::size_t largest_first_block = std::size_t{1} << 18U;
constexpr std::size_t smallest_block = std::size_t{1} << 12U;
constexpr std::size_t longest_read = std::size_t{1} << 20U;  // inside a long line: between polls
constexpr int milliseconds_between_polls = 20;

bool Admits(Line_reader::Source source, const struct stat& status) {
  const bool regular_only = source == Line_reader::Source::regular_file;
  return regular_only ? S_ISREG(status.st_mode) : !S_ISDIR(status.st_mode);
}

}  // namespace

Line_reader::Line_reader(std::string path, Source source, Character_set line_ends, Poll poll)
    : path_(std::move(path)),
      line_ends_(line_ends),
      poll_(poll),
      // To open a pipe that nobody writes to must not block: the wait would meet no poll.
      file_(Open_file(path_, O_RDONLY | O_NONBLOCK)) {
  struct stat status = {};
  if (!file_.Is_open() || File_system::At_hand().Status_of_open(file_.Number(), status) != 0 ||
      !Admits(source, status))
    throw Xep_file_not_found(path_);
  file_size_ = static_cast<std::size_t>(std::max<off_t>(status.st_size, 0));
  regular_ = S_ISREG(status.st_mode);
  Resize_buffer(std::clamp(file_size_ + 1, smallest_block, largest_first_block));
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

/// Returns when a read has something to yield: bytes, the end or a failure. The system tells the
/// end of a pipe only when a writer has come and gone. A signal cuts the wait short, and one that
/// comes in front of it costs no more than the wait.
void Line_reader::Wait_for_more() const {
  if (poll_ != nullptr) poll_();
  if (regular_) return;
  struct pollfd ready = {file_.Number(), POLLIN, 0};
  while (::poll(&ready, 1, poll_ == nullptr ? -1 : milliseconds_between_polls) <= 0)
    if (poll_ != nullptr) poll_();
}

/// Reads more behind the unread bytes; false at the end of the file.
bool Line_reader::Fill() {
  if (at_end_) return false;
  Make_room();
  ssize_t got = 0;
  do {
    Wait_for_more();
    got = File_system::At_hand().Read(file_.Number(), buffer_.get() + end_,
                                      std::min(capacity_ - end_, longest_read));
  } while (got < 0 && (errno == EINTR || errno == EAGAIN));
  if (got < 0)
    throw Xerror_msg("ERROR: reading '" + path_ +
                     "' failed: " + std::generic_category().message(errno) + "\n");
  end_ += static_cast<std::size_t>(got);
  at_end_ = got == 0;
  return !at_end_;
}

}  // namespace gns
