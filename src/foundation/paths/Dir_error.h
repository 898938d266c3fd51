#pragma once

#include <string>

namespace gns {

/// The words for the error number of a failed file call.
std::string Dir_error(int error_number);

}  // namespace gns
