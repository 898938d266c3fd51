#include "files/Unfinished_mark.h"

#include <unistd.h>

#include <cerrno>
#include <filesystem>

#include "foundation/Direktoriz.h"
#include "foundation/File_faults.h"
#include "foundation/Text_writer.h"

namespace gns {

std::string Unfinished_mark_of(const std::string& output_dir) {
  std::filesystem::path path = std::filesystem::absolute(output_dir).lexically_normal();
  if (!path.has_filename()) path = path.parent_path();
  return path.string() + ".unfinished";
}

void Set_unfinished_mark(const std::string& output_dir) {
  const std::string mark = Unfinished_mark_of(output_dir);
  Dir_prepare(std::filesystem::path(mark).parent_path().string(), "keep");
  Text_writer file(mark);
  file << "The results directory of this name isn't whole: its run is still going on, or was "
          "stopped, or failed.\n";
}

void Remove_unfinished_mark(const std::string& output_dir) {
  const std::string mark = Unfinished_mark_of(output_dir);
  if (::unlink(mark.c_str()) != 0) Note_file_fault(mark, "remove", errno);
}

}  // namespace gns
