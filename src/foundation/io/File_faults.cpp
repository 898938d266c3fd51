#include "foundation/io/File_faults.h"

#include <system_error>
#include <utility>

namespace gns {

namespace {

constinit File_fault_list of_the_process;
constinit thread_local File_fault_list* at_hand = &of_the_process;

}  // namespace

void File_fault_list::Note(const std::string& path, const std::string& action, int error_number) {
  const std::string words = std::generic_category().message(error_number);
  const std::lock_guard guard(lock_);
  faults_.push_back({path, action + ": " + words});
}

std::vector<File_fault> File_fault_list::All() const {
  const std::lock_guard guard(lock_);
  return faults_;
}

void File_fault_list::Forget() {
  const std::lock_guard guard(lock_);
  faults_.clear();
}

File_faults_kept::File_faults_kept(File_fault_list& list)
    : before_(std::exchange(at_hand, &list)) {}

File_faults_kept::~File_faults_kept() { at_hand = before_; }

File_fault_list& File_faults_at_hand() { return *at_hand; }

void Note_file_fault(const std::string& path, const std::string& action, int error_number) {
  at_hand->Note(path, action, error_number);
}

std::vector<File_fault> File_faults() { return at_hand->All(); }

void Forget_file_faults() { at_hand->Forget(); }

}  // namespace gns
