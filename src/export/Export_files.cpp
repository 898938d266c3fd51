#include "export/Export_files.h"

#include <utility>

#include "export/New_file.h"
#include "face/Errors_of_face.h"
#include "foundation/paths/Direktoriz.h"

namespace vorlane::exporting {

namespace {

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

void Refuse_existing_files(const std::vector<std::string>& files, std::string_view word) {
  for (const std::string& file : files)
    if (gns::Is_there_such_path(file))
      throw Error(Error_kind::output, "'" + file +
                                          "' exists; move it away, or replace it by vorlane " +
                                          std::string(word) + " --force.");
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
