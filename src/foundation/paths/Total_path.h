#pragma once

#include <list>
#include <string>

namespace gns {

/// The working directory, as `getcwd` gives it into a buffer of `buffer_size` characters. Throws
/// `Xerror_msg` if it can't be had or doesn't fit.
std::string Get_current_path(unsigned buffer_size);

/// The absolute form of a path. "." and ".." are resolved where a "/" follows them; at the end of
/// the path they stay. Throws `Xerror_msg` if the working directory is needed and can't be had.
std::string Get_total_path(const std::string& path);

/// Where a path leads once its missing directories are made: absolute, with all links, "." and ".."
/// resolved, so "missing/../there" leads to "there". The path itself where that can't be found out.
std::string Resolved_path(const std::string& path);

/// The components of a path. Every "/" ends one, also an empty one: "/a/b" gives "", "a", "b".
std::list<std::string> Get_path_list(const std::string& path);

}  // namespace gns
