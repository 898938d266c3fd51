#pragma once

#include <string_view>

namespace gns {

/// True for the flags of deleting and renaming. They tell what to do if the path isn't what was
/// expected: "force" does what was asked for, "silent" moves what is in the way aside,
/// "interactive" asks the user.
inline bool Is_path_flag(std::string_view flag) {
  return flag == "force" || flag == "silent" || flag == "interactive";
}

}  // namespace gns
