#include "foundation/paths/Dir_error.h"

#include <algorithm>
#include <array>
#include <cerrno>

namespace gns {

namespace {

struct Error_text {
  int number;
  const char* text;
};

constexpr std::array<Error_text, 17> error_texts{{
    {EPERM, "The filesyst. does not  support  the removal of directories."},
    {ENOENT, "A component of the path file_name does not exist."},
    {EIO, "An I/O error occurred."},
    {ENOMEM, "Insufficient memory to complete the operation."},
    {EACCES, "Permission denied."},
    {EFAULT, "Bad address."},
    {EBUSY,
     "The rename fails because oldpath or newpath is a directory that  is in use by some process."},
    {EEXIST, "pathname already exists."},
    {EXDEV, "oldpath and newpath are not on the same filesystem."},
    {ENOTDIR, "A component of the path is not a directory."},
    {EISDIR, "newpath is an existing directory, but oldpath is not a directory."},
    {EINVAL, "an attempt was made to make a directory a subdirectory of itself."},
    {ENOSPC, "no room for the new directory entry."},
    {EROFS, "The file is on a read-only filesystem."},
    {ENAMETOOLONG, "pathname too long."},
    {ENOTEMPTY, "newpath is a non-empty directory, i.e., contains entries other than . and .. ."},
    {ELOOP, "Too  many symbolic links encountered while traversing the path."},
}};

}  // namespace

std::string Dir_error(int error_number) {
  const auto* const entry = std::ranges::find(error_texts, error_number, &Error_text::number);
  if (entry != error_texts.end()) return entry->text;
  return " Other error occured, errno=" + std::to_string(error_number);
}

}  // namespace gns
