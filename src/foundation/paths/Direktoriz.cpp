#include "foundation/paths/Direktoriz.h"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <optional>

#include "foundation/Errors.h"
#include "foundation/io/File_system.h"
#include "foundation/paths/Dir_error.h"
#include "foundation/paths/Dir_listing.h"

namespace gns {

namespace {

constexpr off_t empty_dir_size = 48;
constexpr mode_t new_dir_mode = 0755;

bool Is_there_such(const std::string& wanted_type, const std::string& path, bool& empty,
                   std::string& error_text) {
  std::string type;
  if (!Is_there_such_path(path, type, empty, error_text)) return false;
  if (type == wanted_type) return true;
  error_text = "The path " + path + " is a " + type + ".";
  return false;
}

/// The names of everything in a directory, sorted.
std::vector<std::string> Scan_dir(const std::string& path) {
  Dir_listing listing(path);
  std::vector<std::string> names;
  while (const char* const name = listing.Next()) names.emplace_back(name);
  if (listing.Error() != 0)
    throw Xerror_msg("ERROR: List_dir() -> scandir() called on " + path + " and\n" +
                     Dir_error(listing.Error()));
  std::ranges::sort(names, [](const std::string& a, const std::string& b) {
    return std::strcoll(a.c_str(), b.c_str()) < 0;
  });
  return names;
}

/// At what a symbolic link points to, or at the link.
enum class Look { behind_links = 0, at_links = AT_SYMLINK_NOFOLLOW };

int Get_status(const std::string& path, struct stat& status, Look look) {
  return File_system::At_hand().Status(path.c_str(), status, static_cast<int>(look));
}

bool Examine(Look look, const std::string& path, std::string& type, bool& empty,
             std::string& error_text) {
  empty = true;
  type = "other";
  struct stat status {};
  if (Get_status(path, status, look) != 0) {
    error_text = Dir_error(errno);
    return false;
  }
  if (S_ISREG(status.st_mode)) {
    type = "file";
    empty = status.st_size == 0;
  } else if (S_ISDIR(status.st_mode)) {
    type = "dir";
    empty = status.st_size == empty_dir_size;
  }
  return true;
}

/// The type of something that was just found in the directory `path`; none if it has gone since.
std::optional<std::string> Type_of_entry(const std::string& path, const std::string& name,
                                         Look look) {
  const std::string entry = path + "/" + name;
  std::string type;
  bool empty = true;
  std::string error_text;
  if (Examine(look, entry, type, empty, error_text)) return type;
  struct stat link {};
  if (Get_status(entry, link, Look::at_links) != 0 && errno == ENOENT) return std::nullopt;
  throw Xerror_msg("ERROR: problem with " + name + " in List_dir():\n" + error_text);
}

/// True if something has the name, be it a symbolic link that points nowhere.
bool Is_taken(const std::string& path) {
  struct stat status {};
  return Get_status(path, status, Look::at_links) == 0;
}

/// What stands in a directory, sorted by name, with the types of links or of what they point to.
std::vector<Dir_entry> Entries(const std::string& path, Look look) {
  std::vector<Dir_entry> entries;
  for (const std::string& name : Scan_dir(path)) {
    if (const auto type = Type_of_entry(path, name, look)) entries.emplace_back(name, *type);
  }
  return entries;
}

/// Throws if there is no directory at the path; yields whether it counts as empty.
bool Check_listed_dir(const std::string& path) {
  bool empty = true;
  std::string error_text;
  if (!Is_there_such_dir(path, empty, error_text)) {
    throw Xerror_msg("ERROR: List_dir() called on " + path + " and\n" + error_text);
  }
  return empty;
}

}  // namespace

bool Is_there_such_path(const std::string& path, std::string& type, bool& empty,
                        std::string& error_text) {
  return Examine(Look::behind_links, path, type, empty, error_text);
}

bool Is_there_such_path(const std::string& path, std::string& error_text) {
  std::string type;
  bool empty = true;
  return Is_there_such_path(path, type, empty, error_text);
}

bool Is_there_such_path(const std::string& path) {
  std::string error_text;
  return Is_there_such_path(path, error_text);
}

void Refuse_missing(const std::string& operation, const std::string& path) {
  std::string error_text;
  if (Is_there_such_path(path, error_text)) return;
  throw Xerror_msg("ERROR: " + operation + "() called on " + path + " and \n" + error_text);
}

bool Is_there_such_dir(const std::string& path, bool& empty, std::string& error_text) {
  return Is_there_such("dir", path, empty, error_text);
}

bool Is_there_such_dir(const std::string& path) {
  bool empty = true;
  std::string error_text;
  return Is_there_such_dir(path, empty, error_text);
}

bool Is_there_such_file(const std::string& path, bool& empty, std::string& error_text) {
  return Is_there_such("file", path, empty, error_text);
}

bool Is_there_such_file(const std::string& path) {
  bool empty = true;
  std::string error_text;
  return Is_there_such_file(path, empty, error_text);
}

std::vector<Dir_entry> List_dir(const std::string& path) {
  if (Check_listed_dir(path)) return {};
  return Entries(path, Look::behind_links);
}

std::vector<Dir_entry> List_dir_rec(const std::string& path) {
  Check_listed_dir(path);
  const std::string top = path + "/";
  // Found in the opposite order, each directory in front of its contents, and turned at the end.
  std::vector<Dir_entry> tree;
  std::vector<Dir_entry> waiting = Entries(path, Look::at_links);
  while (!waiting.empty()) {
    tree.push_back(std::move(waiting.back()));
    waiting.pop_back();
    if (tree.back().second != "dir") continue;
    const std::string dir = tree.back().first + "/";
    std::vector<Dir_entry> inside = Entries(top + tree.back().first, Look::at_links);
    std::ranges::reverse(inside);
    for (const auto& [name, type] : inside) waiting.emplace_back(dir + name, type);
  }
  std::ranges::reverse(tree);
  return tree;
}

void Rename_the_path(const std::string& old_path, const std::string& new_path) {
  if (File_system::At_hand().Rename(old_path.c_str(), new_path.c_str()) == 0) return;
  const int error = errno;
  throw Xerror_msg("ERROR: Rename_the_path() called with " + old_path + " and " + new_path +
                   " and \n" + Dir_error(error));
}

void Rename_auto(const std::string& path) {
  std::string candidate;
  for (unsigned n = 1; candidate.empty() || Is_taken(candidate); ++n) {
    candidate = path + std::to_string(n);
  }
  Rename_the_path(path, candidate);
}

void Make_dir(const std::string& path) {
  for (std::size_t piece_end = 0; piece_end < path.size();) {
    piece_end = std::min(path.find('/', piece_end), path.size() - 1) + 1;
    std::string partial = path.substr(0, piece_end);
    if (partial.size() > 1 && partial.ends_with('/')) partial.pop_back();
    if (Is_there_such_path(partial)) continue;
    if (File_system::At_hand().Make_dir(partial.c_str(), new_dir_mode) == 0) continue;
    const int error = errno;
    // Somebody else may have made it in between.
    if (error == EEXIST && Is_there_such_dir(partial)) continue;
    throw Xerror_msg("ERROR: Make_dir() called with " + partial + " and \n" + Dir_error(error));
  }
}

}  // namespace gns
