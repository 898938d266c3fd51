#pragma once

#include <string>

namespace gns {

/// Makes a directory with all its missing parents. One that is there stays, with its contents;
/// anything else in its place is moved aside by `Rename_auto`. Throws `Xerror_msg`.
void Make_dir_aside(const std::string& path);

}  // namespace gns
