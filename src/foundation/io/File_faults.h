#pragma once

#include <string>
#include <vector>

namespace gns {

/// Files that could not be opened, written or closed. A writer never throws for such a file; it
/// notes the fault here, and whoever started the run asks at its end. One list per process, as only
/// one run goes on at a time; safe to call from any thread.
struct File_fault {
  std::string path;
  std::string reason;  ///< what was tried, and the words of the system
};

void Note_file_fault(const std::string& path, const std::string& action, int error_number);
std::vector<File_fault> File_faults();
void Forget_file_faults();

}  // namespace gns
