#include "foundation/paths/Renaming.h"

#include "foundation/Errors.h"
#include "foundation/paths/Direktoriz.h"
#include "foundation/paths/Path_flags.h"
#include "foundation/paths/Prompts.h"

namespace gns {

void Rename_path(const std::string& old_path, const std::string& new_path,
                 const std::string& flag) {
  if (!Is_path_flag(flag)) {
    throw Xerror_msg("ERROR: Rename_path() called with unknown flag'" + flag + "'");
  }
  Refuse_missing("Rename_path", old_path);
  const bool in_the_way = flag != "force" && Is_there_such_path(new_path);
  if (in_the_way && flag == "interactive") return Rename_interact(old_path, new_path);
  if (in_the_way) Rename_auto(new_path);
  Rename_the_path(old_path, new_path);
}

void Rename_path(const std::string& old_path, const std::string& new_path) {
  Rename_path(old_path, new_path, "interactive");
}

void Rename_interact(const std::string& old_path, const std::string& new_path) {
  std::string target = new_path;
  while (Ask("Rename_path", "The specified new path " + target + " already exists.",
             " overwrite (o),\n change the destination path (c),\n", "oc") == 'c') {
    target = Ask_name("Please type in the new destination path:");
    Refuse_missing("Rename_path", old_path);
    if (!Is_there_such_path(target)) break;
  }
  Rename_the_path(old_path, target);
}

}  // namespace gns
