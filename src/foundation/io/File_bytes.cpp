#include "foundation/io/File_bytes.h"

#include <poll.h>

#include <algorithm>
#include <cerrno>
#include <system_error>
#include <utility>

#include "foundation/Errors.h"
#include "foundation/io/File_system.h"

namespace gns {

namespace {

constexpr int milliseconds_between_polls = 20;

bool Admits(File_bytes::Source source, const struct stat& status) {
  const bool regular_only = source == File_bytes::Source::regular_file;
  return regular_only ? S_ISREG(status.st_mode) : !S_ISDIR(status.st_mode);
}

}  // namespace

File_bytes::File_bytes(std::string path, Source source, Poll poll)
    : path_(std::move(path)),
      poll_(poll),
      // To open a pipe that nobody writes to must not block: the wait would meet no poll.
      opened_(Open_file(path_, O_RDONLY | O_NONBLOCK)),
      number_(opened_.Number()) {
  Look_at(source);
}

File_bytes::File_bytes(int number, std::string name, Poll poll)
    : path_(std::move(name)), poll_(poll), opened_(-1), number_(number) {
  Look_at(Source::any_file);
}

void File_bytes::Look_at(Source source) {
  struct stat status = {};
  if (number_ < 0 || File_system::At_hand().Status_of_open(number_, status) != 0 ||
      !Admits(source, status))
    throw Xep_file_not_found(path_);
  file_size_ = static_cast<std::size_t>(std::max<off_t>(status.st_size, 0));
  regular_ = S_ISREG(status.st_mode);
}

/// Returns when a read has something to yield: bytes, the end or a failure. The system tells the
/// end of a pipe only when a writer has come and gone. A signal cuts the wait short, and one that
/// comes in front of it costs no more than the wait.
void File_bytes::Wait_for_more() const {
  if (poll_ != nullptr) poll_();
  if (regular_) return;
  struct pollfd ready = {number_, POLLIN, 0};
  while (::poll(&ready, 1, poll_ == nullptr ? -1 : milliseconds_between_polls) <= 0)
    if (poll_ != nullptr) poll_();
}

std::size_t File_bytes::Read(char* buffer, std::size_t size) {
  ssize_t got = 0;
  do {
    Wait_for_more();
    got = File_system::At_hand().Read(number_, buffer, size);
  } while (got < 0 && (errno == EINTR || errno == EAGAIN));
  if (got < 0)
    throw Xerror_msg("ERROR: reading '" + path_ +
                     "' failed: " + std::generic_category().message(errno) + "\n");
  return static_cast<std::size_t>(got);
}

}  // namespace gns
