#include "files/Unfinished_mark.h"

#include <unistd.h>

#include <cerrno>
#include <filesystem>
#include <string_view>

#include "foundation/Direktoriz.h"
#include "foundation/Errors.h"
#include "foundation/File_faults.h"
#include "foundation/Line_reader.h"
#include "foundation/Text_writer.h"

namespace gns {

namespace {

constexpr std::string_view mark_text =
    "The results directory of this name isn't whole: its run is still going on, or was stopped, or "
    "failed.";

/// True if the path is a mark that a run left, perhaps cut short.
bool Is_mark(const std::string& path) {
  if (!Is_there_such_file(path)) return false;
  Line_reader reader(path);
  std::string_view line;
  return !reader.Next(line) || (mark_text.starts_with(line) && !reader.Next(line));
}

}  // namespace

std::string Unfinished_mark_of(const std::string& output_dir) {
  if (output_dir.empty()) throw Xerror_msg("ERROR: the output directory has no name.\n");
  std::filesystem::path path = std::filesystem::absolute(output_dir).lexically_normal();
  if (!path.has_filename()) path = path.parent_path();
  return path.string() + ".unfinished";
}

void Set_unfinished_mark(const std::string& output_dir) {
  const std::string mark = Unfinished_mark_of(output_dir);
  if (Is_there_such_path(mark) && !Is_mark(mark))
    throw Xerror_msg("ERROR: '" + mark +
                     "' is in the way: the run would mark its results as unfinished there.\n");
  Make_dir(std::filesystem::path(mark).parent_path().string());
  Text_writer file(mark);
  file << mark_text << '\n';
}

bool Is_marked_unfinished(const std::string& output_dir) {
  return !output_dir.empty() && Is_mark(Unfinished_mark_of(output_dir));
}

void Remove_unfinished_mark(const std::string& output_dir) {
  const std::string mark = Unfinished_mark_of(output_dir);
  if (Is_there_such_path(mark) && ::unlink(mark.c_str()) != 0)
    Note_file_fault(mark, "remove", errno);
}

}  // namespace gns
