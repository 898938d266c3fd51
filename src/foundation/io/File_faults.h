#pragma once

#include <mutex>
#include <string>
#include <vector>

namespace gns {

/// A file that could not be opened, written or closed.
struct File_fault {
  std::string path;
  std::string reason;  ///< what was tried, and the words of the system
};

/// A writer never throws for such a file; it notes the fault in the list at hand, and whoever
/// started the run asks at its end. Safe to call from any thread.
class File_fault_list {
 public:
  void Note(const std::string& path, const std::string& action, int error_number);
  [[nodiscard]] std::vector<File_fault> All() const;
  void Forget();

 private:
  mutable std::mutex lock_;
  std::vector<File_fault> faults_;
};

/// While it lives, the faults that this thread meets go into this list; without it, into that of
/// the process.
class File_faults_kept {
 public:
  explicit File_faults_kept(File_fault_list& list);
  ~File_faults_kept();
  File_faults_kept(const File_faults_kept&) = delete;
  File_faults_kept& operator=(const File_faults_kept&) = delete;

 private:
  File_fault_list* before_;
};

/// The list at hand, for another thread of the same run to keep.
File_fault_list& File_faults_at_hand();

/// What goes into it, comes from it and leaves it.
void Note_file_fault(const std::string& path, const std::string& action, int error_number);
std::vector<File_fault> File_faults();
void Forget_file_faults();

}  // namespace gns
