#include "foundation/Line_reader.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>
#include <system_error>
#include <utility>

#include "foundation/Errors.h"

namespace gns {

namespace {

bool Is_directory(int file) {
  struct stat status = {};
  return ::fstat(file, &status) == 0 && S_ISDIR(status.st_mode);
}

}  // namespace

Line_reader::Line_reader(std::string path)
    : path_(std::move(path)), file_(::open(path_.c_str(), O_RDONLY | O_CLOEXEC)) {
  constexpr std::size_t first_size = std::size_t{1} << 18U;
  if (file_ >= 0 && Is_directory(file_)) ::close(std::exchange(file_, -1));
  if (file_ < 0) throw Xep_file_not_found(path_);
  buffer_.resize(first_size);
}

Line_reader::~Line_reader() { ::close(file_); }

bool Line_reader::Next(std::string_view& line) {
  std::size_t searched = start_;
  for (;;) {
    const char* from = buffer_.data() + searched;
    const void* newline = std::memchr(from, '\n', end_ - searched);
    if (newline != nullptr) {
      const auto length =
          static_cast<std::size_t>(static_cast<const char*>(newline) - buffer_.data()) - start_;
      line = {buffer_.data() + start_, length};
      start_ += length + 1;
      return true;
    }
    const std::size_t held = end_ - start_;
    if (!Fill()) break;
    searched = start_ + held;
  }
  if (start_ == end_) return false;
  line = {buffer_.data() + start_, end_ - start_};
  start_ = end_;
  return true;
}

/// Moves the unread bytes to the front and reads more behind them; false at the end of the file.
bool Line_reader::Fill() {
  std::memmove(buffer_.data(), buffer_.data() + start_, end_ - start_);
  end_ -= start_;
  start_ = 0;
  if (end_ == buffer_.size()) buffer_.resize(buffer_.size() * 2);
  ssize_t got = 0;
  do {
    got = ::read(file_, buffer_.data() + end_, buffer_.size() - end_);
  } while (got < 0 && errno == EINTR);
  if (got < 0)
    throw Xerror_msg("ERROR: reading '" + path_ +
                     "' failed: " + std::generic_category().message(errno) + "\n");
  end_ += static_cast<std::size_t>(got);
  return got > 0;
}

}  // namespace gns
