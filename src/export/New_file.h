#pragma once

#include <string>
#include <string_view>

#include "export/Text_sink.h"
#include "foundation/io/File_faults.h"
#include "foundation/io/Text_writer.h"

namespace vorlane::exporting {

/// A file that gets its name when it is whole, and is removed if it never is. What can't be written
/// is thrown as an Error of kind `output`. Polls for a stop.
class New_file : public Text_sink {
 public:
  explicit New_file(std::string path);
  ~New_file() override;
  New_file(const New_file&) = delete;
  New_file& operator=(const New_file&) = delete;

  void Finish();

 protected:
  void Take(std::string_view text) override;

 private:
  void Refuse_faults() const;

  std::string path_;
  std::string aside_;
  gns::File_fault_list faults_;
  gns::File_faults_kept kept_;
  gns::Text_writer writer_;
  bool named_ = false;
};

}  // namespace vorlane::exporting
