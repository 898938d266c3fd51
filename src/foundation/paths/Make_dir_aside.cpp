#include "foundation/paths/Make_dir_aside.h"

#include "foundation/paths/Direktoriz.h"

namespace gns {

void Make_dir_aside(const std::string& path) {
  std::string type;
  bool empty = true;
  std::string error_text;
  // One look, not two: a directory that the first can't see is not for moving.
  const bool found = Is_there_such_path(path, type, empty, error_text);
  if (found && type == "dir") return;
  if (found) Rename_auto(path);
  Make_dir(path);
}

}  // namespace gns
