#include "foundation/paths/Dir_prepare.h"

#include "foundation/Errors.h"
#include "foundation/paths/Deleting.h"
#include "foundation/paths/Direktoriz.h"
#include "foundation/paths/Make_dir_aside.h"
#include "foundation/paths/Prompts.h"
#include "foundation/paths/Renaming.h"

namespace gns {

void Dir_prepare(const std::string& path, const std::string& flag) {
  if (flag != "keep" && flag != "clear" && flag != "interactive") {
    throw Xerror_msg("ERROR: Dir_prepare() called with unknown flag '" + flag + "'");
  }
  if (flag == "keep") return Make_dir_aside(path);
  std::string type;
  bool empty = true;
  std::string error_text;
  const bool found = Is_there_such_path(path, type, empty, error_text);
  if (found && flag == "interactive") return Dir_prepare_interact(path, type, empty);
  if (found) Del_path(path);
  Make_dir(path);
}

void Dir_prepare(const std::string& path) { Dir_prepare(path, "interactive"); }

void Dir_prepare_interact(const std::string& path, const std::string& type, bool empty) {
  const std::string finding =
      "The " + path + " is already a " + type + ", and it is" + (empty ? " empty." : " not empty.");
  if (type == "dir") {
    constexpr auto choices = " keep the contents (k),\n clear it (c),\n";
    if (Ask("Dir_prepare", finding, choices, "kc") == 'k') return;
    Delete_dir(path);
  } else if (Ask("Dir_prepare", finding, " overwrite it (o),\n rename it (r),\n", "or") == 'o') {
    Unlink_file(path);
  } else {
    Rename_path(path, Ask_name("Please type in the new path:"), "interactive");
  }
  Make_dir(path);
}

}  // namespace gns
