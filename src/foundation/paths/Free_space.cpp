#include "foundation/paths/Free_space.h"

#include "foundation/io/File_system.h"

namespace gns {

std::optional<Free_space> Free_space_at(const std::string& path) {
  struct statvfs found {};
  const int result =
      Uninterrupted([&] { return File_system::At_hand().Space(path.c_str(), found); });
  if (result != 0 || found.f_frsize == 0) return std::nullopt;
  return Free_space{std::uint64_t{found.f_bavail} * found.f_frsize, found.f_frsize};
}

}  // namespace gns
