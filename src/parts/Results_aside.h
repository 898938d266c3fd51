#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "foundation/io/File_faults.h"

namespace gns::parts {

/// A file in the results directory.
struct Results_file {
  std::string name;  ///< relative to that directory
  std::uint64_t bytes = 0;
  bool operator==(const Results_file&) const = default;
};

/// Where a worker writes results: in a directory of its own inside that of the results, until all
/// of them are whole and take their places. So nothing is ever half written that others see, and
/// two workers may do the same. While it lives, the file faults of this thread are its own.
class Results_aside {
 public:
  /// Makes the directory. Throws Xerror_msg.
  explicit Results_aside(std::string output_dir);
  ~Results_aside();
  Results_aside(const Results_aside&) = delete;
  Results_aside& operator=(const Results_aside&) = delete;

  [[nodiscard]] const std::string& Directory() const { return aside_; }

  /// Brings the files to the disk and puts them in their places. Throws Xerror_msg, and leaves
  /// nothing aside, if one could not be written.
  std::vector<Results_file> Put_in_place();

 private:
  void Refuse_faults() const;
  void Put_in_place(const std::string& entry);

  std::string output_dir_;
  std::string aside_;
  File_fault_list faults_;
  File_faults_kept kept_;
};

/// What stands in a directory, by name; `inside` tells of directories in it as well. Throws
/// Xerror_msg.
std::vector<Results_file> Files_in(const std::string& directory);

/// Deletes what workers that are gone have left aside in the results directory.
void Delete_what_is_aside(const std::string& output_dir);

}  // namespace gns::parts
