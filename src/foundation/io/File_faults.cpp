#include "foundation/io/File_faults.h"

#include <mutex>
#include <system_error>

namespace gns {

namespace {

std::mutex faults_lock;
std::vector<File_fault> faults;

}  // namespace

void Note_file_fault(const std::string& path, const std::string& action, int error_number) {
  const std::string words = std::generic_category().message(error_number);
  const std::lock_guard guard(faults_lock);
  faults.push_back({path, action + ": " + words});
}

std::vector<File_fault> File_faults() {
  const std::lock_guard guard(faults_lock);
  return faults;
}

void Forget_file_faults() {
  const std::lock_guard guard(faults_lock);
  faults.clear();
}

}  // namespace gns
