#include "foundation/paths/Deleting.h"

#include <cerrno>
#include <vector>

#include "foundation/Errors.h"
#include "foundation/io/File_system.h"
#include "foundation/paths/Dir_error.h"
#include "foundation/paths/Direktoriz.h"
#include "foundation/paths/Path_flags.h"
#include "foundation/paths/Prompts.h"
#include "foundation/paths/Renaming.h"

namespace gns {

namespace {

bool Is_link(const std::string& path) {
  struct stat status {};
  return File_system::At_hand().Status(path.c_str(), status, AT_SYMLINK_NOFOLLOW) == 0 &&
         S_ISLNK(status.st_mode);
}

/// With a slash behind it, a link would count as the directory that it points to.
std::string Without_end_slashes(const std::string& path) {
  return path.substr(0, path.find_last_not_of('/') + 1);
}

/// What the deleting prompts do; `remove` deletes the path.
void Delete_or_rename(const std::string& operation, const std::string& path,
                      const std::string& finding, void (*remove)(const std::string&)) {
  if (Ask(operation, "The path " + path + finding, " delete (d),\n rename (r),", "dr") == 'd') {
    remove(path);
  } else {
    Rename_path(path, Ask_name("Please type in the new name:"), "interactive");
  }
}

}  // namespace

void Unlink_file(const std::string& path) {
  if (File_system::At_hand().Remove(AT_FDCWD, path.c_str(), 0) == 0) return;
  const int error = errno;
  throw Xerror_msg("ERROR: Unlink_file() called on '" + path + "'and \n" + Dir_error(error));
}

void Remove_dir(const std::string& path) {
  if (File_system::At_hand().Remove(AT_FDCWD, path.c_str(), AT_REMOVEDIR) == 0) return;
  const int error = errno;
  throw Xerror_msg("ERROR: Remove_dir() called on '" + path + "' and\n" + Dir_error(error));
}

void Delete_dir(const std::string& path) {
  const std::string bare_path = Without_end_slashes(path);
  if (Is_link(bare_path) && Is_there_such_dir(path)) return Unlink_file(bare_path);

  const std::string inside = path + "/";
  const std::vector<Dir_entry> tree = List_dir_rec(path);
  for (const auto& [name, type] : tree) {
    if (type != "dir") Unlink_file(inside + name);
  }
  for (const auto& [name, type] : tree) {
    if (type == "dir") Remove_dir(inside + name);
  }
  Remove_dir(path);
}

void Del_path(const std::string& path) {
  Refuse_missing("Del_path", path);
  if (Is_there_such_dir(path)) {
    Delete_dir(path);
  } else {
    Unlink_file(path);
  }
}

void Del_dir(const std::string& path, const std::string& flag) {
  if (!Is_path_flag(flag)) {
    throw Xerror_msg("ERROR: Del_dir() called with unknown flag '" + flag + "'");
  }
  Refuse_missing("Del_dir", path);
  if (Is_there_such_dir(path)) {
    Delete_dir(path);
  } else if (flag == "force") {
    Unlink_file(path);
  } else if (flag == "silent") {
    Rename_auto(path);
  } else {
    Del_dir_interact(path);
  }
}

void Del_dir(const std::string& path) { Del_dir(path, "interactive"); }

void Del_file(const std::string& path, const std::string& flag) {
  if (!Is_path_flag(flag)) {
    throw Xerror_msg("ERROR: Del_file() called with unknown flag '" + flag + "'.");
  }
  Refuse_missing("Del_file", path);
  if (!Is_there_such_dir(path)) {
    Unlink_file(path);
  } else if (flag == "force") {
    Delete_dir(path);
  } else if (flag == "silent") {
    Rename_auto(path);
  } else {
    Del_file_interact(path);
  }
}

void Del_file(const std::string& path) { Del_file(path, "interactive"); }

void Del_dir_interact(const std::string& path) {
  Delete_or_rename("Del_dir", path, "  is not a directory.", Unlink_file);
}

void Del_file_interact(const std::string& path) {
  Delete_or_rename("Del_file", path, "  is a directory.", Delete_dir);
}

}  // namespace gns
