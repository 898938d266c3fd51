#include <spawn.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <optional>
#include <string>

#include "cli/Side_words.h"
#include "cli/commands/Answers.h"
#include "cli/commands/Title_of.h"
#include "cli/terminal/Live_display.h"
#include "engine/Memory_limit.h"
#include "foundation/Errors.h"
#include "foundation/paths/Total_path.h"
#include "foundation/text/Shown_text.h"
#include "report/Report_file.h"

namespace gns {

namespace {

using vorlane::Figure;

Figure Figure_of(const std::string& name) {
  constexpr std::array<std::pair<std::string_view, Figure>, 3> figures = {
      {{"tree", Figure::tree}, {"graph", Figure::graph}, {"distributions", Figure::distributions}}};
  for (const auto& [known, figure] : figures)
    if (known == name) return figure;
  throw Xerror_msg("There is no picture " + Quoted(name) +
                   "; there are tree, graph and distributions.\n");
}

/// Has the desktop show a file. What comes of it is not waited for.
void Open_in_browser(const std::string& file) {
  std::string opener = "xdg-open";
  std::string path = Get_total_path(file);
  const std::array<char*, 3> words = {opener.data(), path.data(), nullptr};
  pid_t process = 0;
  if (::posix_spawnp(&process, opener.c_str(), nullptr, nullptr, words.data(), environ) != 0)
    Tell("warning: there is no xdg-open here to show " + file + "; open it in a browser");
}

/// The whole work with its progress shown: of the page, or of a picture, whose text it yields.
std::string Work(const Word_line& line, const std::string& file,
                 const vorlane::Report_options& options) {
  const Stopwatch watch;
  Live_display display(watch, {});
  const std::string& directory = line.arguments.front();
  const auto results = vorlane::Results::Open(directory);
  if (!results.Is_finished())
    display.Tell("warning: the run in '" + directory +
                 "' has not finished; what it has found so far is shown.");
  if (line.Has("--svg"))
    return vorlane::report::Make_figure(results, Figure_of(line.Value("--svg")), options);
  vorlane::report::Make_report(results, file, options);
  return "";
}

}  // namespace

void Answer_report(const Word_line& line, std::ostream& out) {
  const bool is_picture = line.Has("--svg");
  if (is_picture) (void)Figure_of(line.Value("--svg"));
  Limit_memory();
  const std::string& directory = line.arguments.front();
  std::string file = line.Value("-o");
  if (file.empty()) {
    file = Without_slashes(directory);
    file.append(is_picture ? "." : ".html");
    if (is_picture) file.append(line.Value("--svg")).append(".svg");
  }
  if (file == "-" && !is_picture)
    throw Xerror_msg("Standard output takes a picture, no page; give the page a file by -o.\n");
  vorlane::Report_options options;
  options.title = Title_of(directory);
  options.k = K_of(line);
  options.overwrites = line.Has("--force");
  const std::string picture = Work(line, file, options);
  if (file == "-") {
    out << picture;
    return;
  }
  if (is_picture) vorlane::report::Write_figure(picture, file, options.overwrites);
  out << file << "\n" << std::flush;
  if (line.Has("--open")) Open_in_browser(file);
}

}  // namespace gns
