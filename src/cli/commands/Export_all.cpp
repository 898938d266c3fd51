#include "cli/commands/Export_all.h"

#include "cli/Side_words.h"

namespace gns {

std::vector<std::string> Export_all(const std::vector<const vorlane::exporting::Format*>& formats,
                                    vorlane::exporting::Export_order order,
                                    const vorlane::exporting::Selection& selection) {
  std::vector<std::string> files;
  for (const auto* const format : formats) {
    order.format = format;
    const auto exported = vorlane::exporting::Export(order, selection);
    files.insert(files.end(), exported.files.begin(), exported.files.end());
    Tell(Of_changed_names(exported.changed_names, *format));
  }
  return files;
}

std::string Of_changed_names(std::size_t count, const vorlane::exporting::Format& format) {
  if (count == 0) return "";
  return "warning: " + std::to_string(count) + " name(s) hold characters that " +
         std::string(format.name) + " can't; U+FFFD stands in their place";
}

}  // namespace gns
