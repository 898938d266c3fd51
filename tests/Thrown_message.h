#pragma once

#include <functional>
#include <string>

#include "foundation/Errors.h"

namespace gns {

/// The message of the `Xerror_msg` that an operation throws.
inline std::string Thrown_message(const std::function<void()>& operation) {
  try {
    operation();
  } catch (const Xerror_msg& error) {
    return error.what();
  }
  return "nothing was thrown";
}

}  // namespace gns
