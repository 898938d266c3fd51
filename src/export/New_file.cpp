#include "export/New_file.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <utility>

#include "control/Run_control.h"
#include "foundation/io/File_system.h"
#include "vorlane/error.h"

namespace vorlane::exporting {

New_file::New_file(std::string path)
    : path_(std::move(path)),
      aside_(path_ + "." + std::to_string(::getpid()) + ".part"),
      kept_(faults_),
      writer_(aside_) {}

New_file::~New_file() {
  if (!named_) gns::File_system::At_hand().Remove(AT_FDCWD, aside_.c_str(), 0);
}

void New_file::Finish() {
  Hand_on();
  if (writer_.Close() && gns::File_system::At_hand().Rename(aside_.c_str(), path_.c_str()) != 0)
    faults_.Note(path_, "rename", errno);
  Refuse_faults();
  named_ = true;
}

void New_file::Take(std::string_view text) {
  external_control::Check_for_stop_signal();
  writer_ << text;
  Refuse_faults();
}

void New_file::Refuse_faults() const {
  const auto faults = faults_.All();
  if (!faults.empty())
    throw Error(Error_kind::output, "'" + path_ + "' can't be written: " + faults[0].reason +
                                        ". Nothing is left of it.");
}

}  // namespace vorlane::exporting
