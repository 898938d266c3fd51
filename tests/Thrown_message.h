#pragma once

#include <functional>
#include <string>

#include "foundation/Errors.h"

namespace gns {

/// The message of the error of such a type that an operation throws.
template <typename Error = Xerror_msg>
std::string Thrown_message(const std::function<void()>& operation) {
  try {
    operation();
  } catch (const Error& error) {
    return error.what();
  }
  return "nothing was thrown";
}

}  // namespace gns
