#pragma once

#include <functional>
#include <string>

namespace gns {

/// The message of a run or reload that finished; any other message tells why it did not.
extern const std::string run_finished;

/// Does the work of a run or a reload and yields its message. Never throws, nor does the call if
/// the work comes by `std::cref`: anything else may have to be copied into memory first. While one
/// is going on in the process, a second one is refused.
std::string Message_of(const std::function<void()>& work);

}  // namespace gns
