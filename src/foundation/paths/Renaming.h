#pragma once

#include <string>

namespace gns {

/// Renames a path. If the new path exists, the flag decides: "force" replaces it as far as `rename`
/// allows, "silent" moves it aside by `Rename_auto`, "interactive" (the form without a flag) calls
/// `Rename_interact`.
void Rename_path(const std::string& old_path, const std::string& new_path, const std::string& flag);
void Rename_path(const std::string& old_path, const std::string& new_path);

/// Asks whether the new path, which exists, is to be overwritten, or for another one, until that
/// doesn't exist. Throws "stopped interactively by user." on any other answer.
void Rename_interact(const std::string& old_path, const std::string& new_path);

}  // namespace gns
