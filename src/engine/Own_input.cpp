#include "engine/Own_input.h"

#include <cerrno>
#include <system_error>

#include "foundation/Errors.h"
#include "foundation/io/File_system.h"
#include "foundation/paths/Total_path.h"

namespace gns {

namespace {

/// False if nothing can be reached at the path.
bool Look_at(const std::string& path, struct stat& status) {
  if (File_system::At_hand().Status(path.c_str(), status, 0) == 0) return true;
  const int error = errno;
  if (Leads_nowhere(error)) return false;
  throw Xerror_msg("ERROR: '" + path +
                   "' can't be looked at: " + std::generic_category().message(error) + ".\n");
}

}  // namespace

void Refuse_own_input(const std::string& input_file, const std::string& output_dir) {
  struct stat input {};
  struct stat output {};
  if (Look_at(input_file, input) && Look_at(Resolved_path(output_dir), output) &&
      Is_same_file(input, output))
    throw Xerror_msg("ERROR: the results can't be written to '" + output_dir +
                     "':\n it is the input file. Choose another output directory.\n");
}

}  // namespace gns
