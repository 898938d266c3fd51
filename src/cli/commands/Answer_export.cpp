#include <algorithm>
#include <optional>
#include <string>
#include <vector>

#include "cli/Side_words.h"
#include "cli/commands/Answers.h"
#include "export/Export_files.h"
#include "foundation/Errors.h"
#include "foundation/text/Shown_text.h"

namespace gns {

namespace {

using vorlane::exporting::Export_order;
using vorlane::exporting::Format;
using vorlane::exporting::Selection;

std::vector<const Format*> Formats_in(std::string_view names) {
  std::vector<const Format*> formats;
  while (!names.empty()) {
    const std::string_view name = names.substr(0, names.find(','));
    names.remove_prefix(std::min(name.size() + 1, names.size()));
    const Format* const format = vorlane::exporting::Format_of(name);
    if (format == nullptr) {
      std::string there;
      for (const Format& other : vorlane::exporting::All_formats())
        there.append(there.empty() ? "" : ", ").append(other.name);
      throw Xerror_msg("There is no format " + Quoted(name) + "; there are " + there + ".\n");
    }
    formats.push_back(format);
  }
  return formats;
}

std::string Without_slashes(std::string path) {
  while (path.size() > 1 && path.ends_with('/')) path.pop_back();
  return path;
}

void Tell_of(std::size_t changed_names, const Format& format) {
  if (changed_names == 0) return;
  Tell("warning: " + std::to_string(changed_names) + " name(s) hold characters that " +
       std::string(format.name) + " can't; U+FFFD stands in their place.");
}

void To_stream(const Format& format, const Selection& selection, std::ostream& out) {
  vorlane::exporting::Stream_sink sink(out);
  if (format.files.size() > 1 || (format.one_k && selection.Ks().size() != 1))
    throw Xerror_msg("The format " + std::string(format.name) +
                     " has several files, which standard output can't take.\n");
  format.files[0].write(selection, sink);
  sink.Hand_on();
  Tell_of(sink.Changed_names(), format);
}

}  // namespace

void Answer_export(const Word_line& line, std::ostream& out) {
  if (!line.Has("--format")) throw Xerror_msg("Which format? See: vorlane help export\n");
  const std::vector<const Format*> formats = Formats_in(line.Value("--format"));
  const std::optional<std::uint32_t> k = K_of(line);
  const std::string& directory = line.arguments.front();
  const std::string file = line.Value("-o");
  const Selection selection(vorlane::Results::Open(directory), k);
  if (!selection.Results().Is_finished())
    Tell("warning: the run in '" + directory +
         "' has not finished; what it has found so far is exported.");
  if (file == "-") {
    if (formats.size() > 1) throw Xerror_msg("Standard output takes one format.\n");
    return To_stream(*formats.front(), selection, out);
  }
  for (const Format* const format : formats) {
    Export_order order;
    order.format = format;
    order.stem = file.empty() ? Without_slashes(directory) : file;
    if (formats.size() == 1) order.file = file;
    order.overwrites = line.Has("--force");
    const auto exported = Export(order, selection);
    for (const std::string& name : exported.files) out << name << "\n";
    Tell_of(exported.changed_names, *format);
  }
}

}  // namespace gns
