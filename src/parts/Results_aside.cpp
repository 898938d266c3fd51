#include "parts/Results_aside.h"

#include <algorithm>
#include <cerrno>
#include <system_error>
#include <utility>

#include "foundation/Errors.h"
#include "foundation/io/Descriptor.h"
#include "foundation/io/File_system.h"
#include "foundation/paths/Deleting.h"
#include "foundation/paths/Dir_listing.h"
#include "parts/Aside.h"
#include "parts/File_aside.h"

namespace gns::parts {

namespace {

/// Hidden, so that it isn't taken for a result.
const std::string part_name = ".part";

[[noreturn]] void Refuse(const std::string& path, const std::string& action, int error) {
  throw Xerror_msg("ERROR: the results can't be written to '" + path + "': " + action + ": " +
                   std::generic_category().message(error) +
                   ". Do the same again when that is mended.\n");
}

std::vector<std::string> Names_in(const std::string& directory) {
  Dir_listing listing(directory);
  std::vector<std::string> names;
  while (const char* const name = listing.Next()) names.emplace_back(name);
  if (listing.Error() != 0) Refuse(directory, "list", listing.Error());
  std::ranges::sort(names);
  return names;
}

std::string New_directory(const std::string& output_dir) {
  constexpr mode_t mode = 0755;
  for (;;) {
    std::string aside = output_dir + "/" + Name_aside(part_name);
    if (File_system::At_hand().Make_dir(aside.c_str(), mode) == 0) return aside;
    if (errno != EEXIST) Refuse(output_dir, "make a directory", errno);
  }
}

std::string Inside(std::string directory, const std::string& name) {
  return directory.append("/").append(name);
}

void Append_files(const std::string& root, const std::string& inside,
                  std::vector<Results_file>& files) {
  for (const std::string& entry : Names_in(Inside(root, inside))) {
    std::string name = inside;
    name.append(entry);
    const std::string path = Inside(root, name);
    struct stat status {};
    if (File_system::At_hand().Status(path.c_str(), status, 0) != 0)
      Refuse(path, "look at it", errno);
    if (S_ISDIR(status.st_mode))
      Append_files(root, name.append("/"), files);
    else
      files.push_back({name, static_cast<std::uint64_t>(status.st_size)});
  }
}

bool Is_directory(const std::string& path) {
  struct stat status {};
  return File_system::At_hand().Status(path.c_str(), status, 0) == 0 && S_ISDIR(status.st_mode);
}

bool Moves(const std::string& from, const std::string& to) {
  return File_system::At_hand().Rename(from.c_str(), to.c_str()) == 0;
}

}  // namespace

Results_aside::Results_aside(std::string output_dir)
    : output_dir_(std::move(output_dir)), aside_(New_directory(output_dir_)), kept_(faults_) {}

Results_aside::~Results_aside() {
  try {
    Delete_dir(aside_);
  } catch (const Xerror_msg&) {
    return;  // the last step looks for what is left
  }
}

void Results_aside::Refuse_faults() const {
  const auto faults = faults_.All();
  if (faults.empty()) return;
  std::string name = faults[0].path;
  if (name.starts_with(aside_)) name = output_dir_ + name.substr(aside_.size());
  throw Xerror_msg("ERROR: '" + name + "' can't be written: " + faults[0].reason +
                   ". Do the same again when that is mended.\n");
}

std::vector<Results_file> Results_aside::Put_in_place() {
  Refuse_faults();
  std::vector<Results_file> files = Files_in(aside_);
  File_system& system = File_system::At_hand();
  // The whole file system at once, as there may be thousands of files.
  if (const Descriptor directory(Open_file(aside_, O_RDONLY | O_DIRECTORY));
      Is_synced() && Uninterrupted([&] { return system.Sync_all(directory.Number()); }) != 0)
    Refuse(output_dir_, "sync", errno);
  for (const std::string& entry : Names_in(aside_)) Put_in_place(entry);
  return files;
}

/// A file takes the place of another. A directory does so only if that is empty; one that holds the
/// same files is another worker's, and stays.
void Results_aside::Put_in_place(const std::string& entry) {
  const std::string ours = aside_ + "/" + entry;
  const std::string place = output_dir_ + "/" + entry;
  constexpr int attempts = 100;  // others may do the same
  for (int i = 0; i < attempts; ++i) {
    if (Moves(ours, place)) return;
    const int error = errno;
    if (error != ENOTEMPTY && error != EEXIST && error != ENOTDIR && error != EISDIR)
      Refuse(place, "rename", error);
    if (Is_directory(place) && Is_directory(ours) && Files_in(place) == Files_in(ours)) return;
    Moves(place, aside_ + "/" + Name_aside("old"));
  }
  Refuse(place, "rename", EEXIST);
}

std::vector<Results_file> Files_in(const std::string& directory) {
  std::vector<Results_file> files;
  Append_files(directory, "", files);
  return files;
}

void Delete_what_is_aside(const std::string& output_dir) {
  for (const std::string& name : Names_in(output_dir)) {
    const auto maker = Maker_of(name);
    if (maker && maker->name == part_name) Delete_dir(Inside(output_dir, name));
  }
}

}  // namespace gns::parts
