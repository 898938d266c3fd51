#include <algorithm>
#include <optional>
#include <string>
#include <vector>

#include "cli/Side_words.h"
#include "cli/commands/Answers.h"
#include "cli/commands/Export_all.h"
#include "cli/commands/Title_of.h"
#include "cli/options/Output_options.h"
#include "export/Export_files.h"
#include "foundation/Errors.h"

namespace gns {

namespace {

using vorlane::exporting::Export_order;
using vorlane::exporting::Format;
using vorlane::exporting::Selection;

void To_stream(const Format& format, const Selection& selection, std::ostream& out) {
  vorlane::exporting::Stream_sink sink(out);
  if (format.files.size() > 1 || (format.one_k && selection.Ks().size() != 1))
    throw Xerror_msg("The format " + std::string(format.name) +
                     " has several files, which standard output can't take.\n");
  format.files[0].write(selection, sink);
  sink.Hand_on();
  Tell(Of_changed_names(sink.Changed_names(), format));
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
  Export_order order;
  order.stem = file.empty() ? Without_slashes(directory) : file;
  if (formats.size() == 1) order.file = file;
  order.overwrites = line.Has("--force");
  for (const std::string& name : Export_all(formats, order, selection)) out << name << "\n";
}

}  // namespace gns
