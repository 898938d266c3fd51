#include "foundation/Line_reader.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <system_error>
#include <utility>

#include "foundation/Errors.h"

namespace gns {

namespace {

constexpr std::size_t largest_first_block = std::size_t{1} << 18U;
constexpr std::size_t smallest_block = std::size_t{1} << 12U;

/// Opens for reading; -1 if there is nothing that `source` admits. To open a pipe that nobody
/// writes to must not block where pipes are refused.
int Open_for_reading(const std::string& path, Line_reader::Source source, struct stat& status) {
  const bool regular_only = source == Line_reader::Source::regular_file;
  const int file = ::open(path.c_str(), O_RDONLY | O_CLOEXEC | (regular_only ? O_NONBLOCK : 0));
  if (file < 0 || ::fstat(file, &status) != 0) return file;
  if (regular_only ? S_ISREG(status.st_mode) : !S_ISDIR(status.st_mode)) return file;
  ::close(file);
  return -1;
}

}  // namespace

Line_reader::Line_reader(std::string path, Source source, Character_set line_ends)
    : path_(std::move(path)), line_ends_(line_ends) {
  struct stat status = {};
  file_ = Open_for_reading(path_, source, status);
  if (file_ < 0) throw Xep_file_not_found(path_);
  file_size_ = static_cast<std::size_t>(std::max<off_t>(status.st_size, 0));
  capacity_ = std::clamp(file_size_ + 1, smallest_block, largest_first_block);
  buffer_ = std::make_unique_for_overwrite<char[]>(capacity_);
}

Line_reader::~Line_reader() { ::close(file_); }

bool Line_reader::Next(std::string_view& line) {
  std::size_t searched = start_;
  for (;;) {
    const char* const line_end = line_ends_.Find_in({buffer_.get() + searched, end_ - searched});
    if (line_end != nullptr) {
      line = {buffer_.get() + start_, line_end};
      start_ += line.size() + 1;
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
  terminated_ = false;
  return true;
}

/// Moves the unread bytes to the front, of a larger buffer if they fill this one.
void Line_reader::Make_room() {
  if (start_ == 0 && end_ < capacity_) return;
  const std::size_t held = end_ - start_;
  if (held == capacity_) {
    auto larger = std::make_unique_for_overwrite<char[]>(capacity_ * 2);
    std::memcpy(larger.get(), buffer_.get(), held);
    buffer_ = std::move(larger);
    capacity_ *= 2;
  } else {
    std::memmove(buffer_.get(), buffer_.get() + start_, held);
  }
  start_ = 0;
  end_ = held;
}

/// Reads more behind the unread bytes; false at the end of the file.
bool Line_reader::Fill() {
  Make_room();
  ssize_t got = 0;
  do {
    got = ::read(file_, buffer_.get() + end_, capacity_ - end_);
  } while (got < 0 && errno == EINTR);
  if (got < 0)
    throw Xerror_msg("ERROR: reading '" + path_ +
                     "' failed: " + std::generic_category().message(errno) + "\n");
  end_ += static_cast<std::size_t>(got);
  return got > 0;
}

}  // namespace gns
