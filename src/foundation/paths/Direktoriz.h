#pragma once

#include <string>
#include <utility>
#include <vector>

namespace gns {

/// Operations on paths. Paths are used unchanged: a relative one refers to the working directory.
/// A symbolic link counts as what it points to, unless told otherwise. Every failure is thrown as
/// `Xerror_msg`.

/// Name and type of something in a directory.
using Dir_entry = std::pair<std::string, std::string>;

/// True if the path exists. `type` becomes "file" (a regular file), "dir" or "other". `empty`
/// becomes false for a file with contents and for a directory whose reported size is not exactly
/// 48, the only size that counts as an empty directory. `error_text` is written if it's missing.
bool Is_there_such_path(const std::string& path, std::string& type, bool& empty,
                        std::string& error_text);
bool Is_there_such_path(const std::string& path, std::string& error_text);
bool Is_there_such_path(const std::string& path);

/// Throws if the path doesn't exist, with words for the operation that was called on it.
void Refuse_missing(const std::string& operation, const std::string& path);

/// True if the path exists and is a directory; else `error_text` says why not.
bool Is_there_such_dir(const std::string& path, bool& empty, std::string& error_text);
bool Is_there_such_dir(const std::string& path);

/// True if the path exists and is a regular file; else `error_text` says why not.
bool Is_there_such_file(const std::string& path, bool& empty, std::string& error_text);
bool Is_there_such_file(const std::string& path);

/// What stands in a directory, without "." and "..", sorted by name. A directory that counts as
/// empty isn't opened. What is deleted meanwhile may be there or not.
std::vector<Dir_entry> List_dir(const std::string& path);

/// The whole tree below a directory, with names relative to `path`. What stands in the directory
/// itself is sorted by name, what stands further below in the opposite order, and everything inside
/// a directory comes in front of the directory. Every directory is opened, also one that counts as
/// empty. A symbolic link in the tree is "other", wherever it points to, and is never followed.
std::vector<Dir_entry> List_dir_rec(const std::string& path);

void Rename_the_path(const std::string& old_path, const std::string& new_path);

/// Moves a path aside: its new name is the first of path1, path2, ... that nothing has, not even a
/// symbolic link that points nowhere.
void Rename_auto(const std::string& path);

/// Makes a directory with all its missing parents.
void Make_dir(const std::string& path);

}  // namespace gns
