#pragma once

#include <string>

namespace gns {

/// A symbolic link is deleted itself. What it points to survives, whether the link was given or
/// stands in a tree that is deleted. One that points nowhere doesn't exist for those that look at
/// the path first (Del_...); Unlink_file deletes it.

/// Deletes anything but a directory.
void Unlink_file(const std::string& path);

/// Deletes an empty directory.
void Remove_dir(const std::string& path);

/// Deletes a directory with everything in it, or a symbolic link to a directory. If that fails
/// halfway, the tree is partly deleted; if the tree can't be listed, nothing is.
void Delete_dir(const std::string& path);

/// Deletes whatever stands at the path.
void Del_path(const std::string& path);

/// Deletes a directory with everything in it. If the path is no directory, the flag decides:
/// "force" deletes it all the same, "silent" moves it aside by `Rename_auto`, "interactive" (the
/// form without a flag) calls `Del_dir_interact`.
void Del_dir(const std::string& path, const std::string& flag);
void Del_dir(const std::string& path);

/// Deletes anything but a directory. If the path is a directory, the flag decides: "force" deletes
/// it with everything in it, "silent" moves it aside by `Rename_auto`, "interactive" (the form
/// without a flag) calls `Del_file_interact`.
void Del_file(const std::string& path, const std::string& flag);
void Del_file(const std::string& path);

/// Ask whether to delete or to rename a path that isn't, or is, a directory. Any other answer
/// throws "stopped interactively by user."
void Del_dir_interact(const std::string& path);
void Del_file_interact(const std::string& path);

}  // namespace gns
