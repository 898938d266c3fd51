#include "files/Unfinished_mark.h"

#include <cerrno>
#include <string_view>
#include <system_error>

#include "files/Results_directory.h"
#include "foundation/Environment.h"
#include "foundation/Errors.h"
#include "foundation/io/File_faults.h"
#include "foundation/io/File_system.h"
#include "foundation/paths/Direktoriz.h"
#include "foundation/paths/Make_dir_aside.h"
#include "foundation/paths/Total_path.h"

namespace gns {

namespace {

constexpr const char* mark_name = ".unfinished";
constexpr std::string_view mark_text =
    "The results in this directory are not whole: their run is still going on, or was stopped, or "
    "failed.\n";

Xerror_msg Not_writable(const std::string& output_dir, int error_number) {
  return Xerror_msg("ERROR: the results can't be written to '" + output_dir +
                    "': " + std::generic_category().message(error_number) + ".\n");
}

/// Opens a directory, which is made if it is missing.
int Open_output_dir(const std::string& output_dir) {
  if (output_dir.empty()) throw Xerror_msg("ERROR: the output directory has no name.\n");
  // A path by way of a missing directory may lead to one that is in use.
  const std::string resolved = Resolved_path(output_dir);
  if (Is_there_such_dir(resolved)) Check_entries(resolved);
  Make_dir_aside(output_dir);
  const int directory = Open_file(output_dir, O_RDONLY | O_DIRECTORY);
  if (directory < 0) throw Not_writable(output_dir, errno);
  return directory;
}

int Make_mark(int directory) {
  constexpr mode_t mode = 0666;
  return Open_file(mark_name, O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW, mode, directory);
}

/// Makes the mark of a directory that holds nothing.
int Claim(const std::string& output_dir, int directory) {
  Check_entries(output_dir);
  const int mark = Make_mark(directory);
  if (mark >= 0) return mark;
  const int error = errno;
  if (error == EEXIST) Check_entries(output_dir);  // another run was faster
  throw Not_writable(output_dir, error);
}

}  // namespace

Unfinished_mark::Unfinished_mark(const std::string& output_dir)
    : output_dir_(output_dir),
      directory_(Open_output_dir(output_dir)),
      mark_(Claim(output_dir, directory_.Number())) {
  try {
    if (!Write_all(mark_.Number(), mark_text.data(), mark_text.size()))
      throw Not_writable(output_dir, errno);
    // From here on no other run comes in, but one may have finished in front of the mark.
    Check_entries(output_dir, mark_name);
  } catch (...) {
    File_system::At_hand().Remove(directory_.Number(), mark_name, 0);
    throw;
  }
}

Unfinished_mark::Unfinished_mark(const std::string& output_dir, int directory, int mark)
    : output_dir_(output_dir), directory_(directory), mark_(mark) {
  if (!mark_.Is_open())
    throw Xerror_msg("ERROR: the results in '" + output_dir +
                     "' can't be gone on with: " + std::generic_category().message(errno) + ".\n");
}

Unfinished_mark Unfinished_mark::Taken_up(const std::string& output_dir) {
  const int directory = Open_file(output_dir, O_RDONLY | O_DIRECTORY);
  const int mark = directory < 0 ? -1 : Open_file(mark_name, O_RDONLY | O_NOFOLLOW, 0, directory);
  return {output_dir, directory, mark};
}

void Unfinished_mark::Check() const {
  struct stat ours {};
  struct stat found {};
  File_system& files = File_system::At_hand();
  if (files.Status_of_open(mark_.Number(), ours) == 0 &&
      files.Status(Unfinished_mark_of(output_dir_).c_str(), found, AT_SYMLINK_NOFOLLOW) == 0 &&
      Is_same_file(ours, found))
    return;
  const Descriptor replacement(Open_file(output_dir_, O_RDONLY | O_DIRECTORY));
  if (replacement.Is_open()) const Descriptor mark(Make_mark(replacement.Number()));
  throw Xerror_msg("ERROR: the output directory '" + output_dir_ +
                   "' was moved or deleted during the run.\n");
}

void Unfinished_mark::Remove() {
  Check();
  File_system& files = File_system::At_hand();
  const bool sync = Environment_variable("VORLANE_NO_SYNC").empty();
  // The whole file system at once: there may be thousands of files, and each would cost a wait.
  if (sync && Uninterrupted([&] { return files.Sync_all(directory_.Number()); }) != 0)
    return Note_file_fault(output_dir_, "sync", errno);
  mark_.Close();  // some file systems keep what is open under another name
  if (files.Remove(directory_.Number(), mark_name, 0) != 0)
    return Note_file_fault(Unfinished_mark_of(output_dir_), "remove", errno);
  // Where this fails, the mark may come back, which does no harm to the results.
  if (sync) Uninterrupted([&] { return files.Sync(directory_.Number()); });
}

std::string Unfinished_mark_of(const std::string& output_dir) {
  return output_dir + "/" + mark_name;
}

bool Is_marked_unfinished(const std::string& output_dir) {
  struct stat status {};
  const std::string mark = Unfinished_mark_of(output_dir);
  return File_system::At_hand().Status(mark.c_str(), status, AT_SYMLINK_NOFOLLOW) == 0 ||
         !Leads_nowhere(errno);
}

}  // namespace gns
