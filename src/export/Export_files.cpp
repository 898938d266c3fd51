#include "export/Export_files.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <utility>

#include "control/Run_control.h"
#include "face/Errors_of_face.h"
#include "foundation/io/File_faults.h"
#include "foundation/io/File_system.h"
#include "foundation/io/Text_writer.h"
#include "foundation/paths/Direktoriz.h"

namespace vorlane::exporting {

namespace {

/// A file that gets its name when it is whole, and is removed if it never is.
class New_file : public Text_sink {
 public:
  explicit New_file(std::string path)
      : path_(std::move(path)),
        aside_(path_ + "." + std::to_string(::getpid()) + ".part"),
        kept_(faults_),
        writer_(aside_) {}

  ~New_file() override {
    if (!named_) gns::File_system::At_hand().Remove(AT_FDCWD, aside_.c_str(), 0);
  }
  New_file(const New_file&) = delete;
  New_file& operator=(const New_file&) = delete;

  void Finish() {
    Hand_on();
    if (writer_.Close() && gns::File_system::At_hand().Rename(aside_.c_str(), path_.c_str()) != 0)
      faults_.Note(path_, "rename", errno);
    Refuse_faults();
    named_ = true;
  }

 protected:
  void Take(std::string_view text) override {
    external_control::Check_for_stop_signal();
    writer_ << text;
    Refuse_faults();
  }

 private:
  void Refuse_faults() const {
    const auto faults = faults_.All();
    if (!faults.empty())
      throw Error(Error_kind::output, "'" + path_ + "' can't be written: " + faults[0].reason +
                                          ". Nothing is left of it.");
  }

  std::string path_;
  std::string aside_;
  gns::File_fault_list faults_;
  gns::File_faults_kept kept_;
  gns::Text_writer writer_;
  bool named_ = false;
};

/// The selections that go into one set of files each, with what their names begin with.
std::vector<std::pair<std::string, Selection>> Parts(const Export_order& order,
                                                     const Selection& selection) {
  if (!order.format->one_k || selection.Ks().size() < 2) return {{order.stem, selection}};
  std::vector<std::pair<std::string, Selection>> parts;
  for (const std::uint32_t k : selection.Ks())
    parts.emplace_back(order.stem + ".k" + std::to_string(k), Selection(selection.Results(), k));
  return parts;
}

void Append_files(const Format& format, const std::string& stem, std::vector<std::string>& files) {
  for (const Format_file& file : format.files) files.push_back(stem + std::string(file.ending));
}

}  // namespace

std::vector<std::string> Files_of(const Export_order& order, const Selection& selection) {
  std::vector<std::string> files;
  for (const auto& [stem, part] : Parts(order, selection)) Append_files(*order.format, stem, files);
  if (files.size() == 1 && !order.file.empty()) files[0] = order.file;
  return files;
}

std::vector<std::string> Files_of(const Export_order& order) {
  std::vector<std::string> files;
  if (!order.format->one_k) Append_files(*order.format, order.stem, files);
  return files;
}

void Refuse_existing_files(const std::vector<std::string>& files) {
  for (const std::string& file : files)
    if (gns::Is_there_such_path(file))
      throw Error(Error_kind::output,
                  "'" + file + "' exists; move it away, or replace it by vorlane export --force.");
}

Exported Export(const Export_order& order, const Selection& selection) {
  Exported exported;
  exported.files = Files_of(order, selection);
  if (!order.overwrites) Refuse_existing_files(exported.files);
  face::With_errors(Error_kind::output, [&] {
    auto path = exported.files.begin();
    for (const auto& [stem, part] : Parts(order, selection))
      for (const Format_file& file : order.format->files) {
        New_file out(*path++);
        file.write(part, out);
        out.Finish();
        exported.changed_names += out.Changed_names();
      }
    return true;
  });
  return exported;
}

}  // namespace vorlane::exporting
