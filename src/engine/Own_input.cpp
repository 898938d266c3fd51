#include "engine/Own_input.h"

#include <filesystem>
#include <system_error>

#include "files/Unfinished_mark.h"
#include "foundation/Errors.h"

namespace gns {

namespace {

namespace fs = std::filesystem;

void Refuse_if_same(const fs::path& input_file, const fs::path& output) {
  std::error_code ignored;  // what doesn't exist is not the same
  if (fs::equivalent(input_file, output, ignored))
    throw Xerror_msg("ERROR: the results can't be written to '" + output.string() +
                     "':\n it is the input file. Choose another output directory with -o.\n");
}

}  // namespace

void Refuse_own_input(const std::string& input_file, const std::string& output_dir) {
  Refuse_if_same(input_file, Unfinished_mark_of(output_dir));
  for (fs::path path = output_dir;; path = path.parent_path()) {
    Refuse_if_same(input_file, path);
    if (!path.has_relative_path()) return;
  }
}

}  // namespace gns
