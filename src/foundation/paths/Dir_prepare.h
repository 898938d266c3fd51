#pragma once

#include <string>

namespace gns {

/// Makes sure that the path is a directory. If something stands there already, the flag decides:
/// - "keep" calls `Make_dir_aside`.
/// - "clear" deletes it and makes an empty directory.
/// - "interactive" (the form without a flag) calls `Dir_prepare_interact`.
void Dir_prepare(const std::string& path, const std::string& flag);
void Dir_prepare(const std::string& path);

/// Asks what to do with what stands at the path; `type` and `empty` as of `Is_there_such_path`.
/// The contents of a directory are kept or deleted, anything else is overwritten or renamed. Any
/// other answer throws "stopped interactively by user."
void Dir_prepare_interact(const std::string& path, const std::string& type, bool empty);

}  // namespace gns
