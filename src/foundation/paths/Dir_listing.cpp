#include "foundation/paths/Dir_listing.h"

#include <cerrno>
#include <string_view>

#include "foundation/io/File_system.h"

namespace gns {

Dir_listing::Dir_listing(const std::string& path) {
  do {
    dir_ = File_system::At_hand().Open_dir(path.c_str());
  } while (dir_ == nullptr && errno == EINTR);
  if (dir_ == nullptr) error_ = errno;
}

Dir_listing::~Dir_listing() {
  if (dir_ != nullptr) File_system::At_hand().Close_dir(dir_);
}

const char* Dir_listing::Next() {
  while (error_ == 0) {
    errno = 0;
    const dirent* const entry = File_system::At_hand().Read_dir(dir_);
    if (entry == nullptr) {
      error_ = errno;
      break;
    }
    const std::string_view name = entry->d_name;
    if (name != "." && name != "..") return entry->d_name;
  }
  return nullptr;
}

}  // namespace gns
