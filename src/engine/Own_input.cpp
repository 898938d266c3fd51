#include "engine/Own_input.h"

#include <filesystem>
#include <system_error>

#include "foundation/Errors.h"
#include "foundation/paths/Total_path.h"

namespace gns {

void Refuse_own_input(const std::string& input_file, const std::string& output_dir) {
  std::error_code ignored;  // what doesn't exist is not the same
  if (std::filesystem::equivalent(input_file, Resolved_path(output_dir), ignored))
    throw Xerror_msg("ERROR: the results can't be written to '" + output_dir +
                     "':\n it is the input file. Choose another output directory.\n");
}

}  // namespace gns
