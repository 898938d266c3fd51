#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>
#include <vector>

#include "Temp_dir.h"

namespace gns {
namespace {

/// A command that a document shows, and what it prints.
struct Shown_command {
  std::string command;
  std::string output;
};

/// Those of all blocks of the language console; commands stand behind a "$".
std::vector<Shown_command> Commands_in(const std::string& document) {
  std::vector<Shown_command> commands;
  std::ifstream file(document);
  bool inside = false;
  for (std::string line; std::getline(file, line);) {
    if (line.starts_with("```")) {
      inside = line == "```console";
    } else if (inside && line.starts_with("$ ")) {
      commands.push_back({line.substr(2), ""});
    } else if (inside) {
      commands.back().output += line + "\n";
    }
  }
  return commands;
}

/// "..." at the end of a line stands for the rest of it; in a line of its own, for all that
/// follows.
bool Is_as_shown(const std::string& printed, const std::string& shown) {
  std::istringstream printed_lines(printed);
  std::istringstream shown_lines(shown);
  std::string found;
  for (std::string line; std::getline(shown_lines, line);) {
    if (line == "...") return true;
    if (!std::getline(printed_lines, found)) return false;
    const bool open = line.ends_with("...");
    if (open ? !found.starts_with(line.substr(0, line.size() - 3)) : found != line) return false;
  }
  return !std::getline(printed_lines, found);
}

/// Does what a document shows, in a directory with the examples.
void Try_commands_of(const std::string& document) {
  const Temp_dir temp;
  const std::filesystem::path examples = std::filesystem::path(VORLANE_SOURCE) / "examples";
  for (const char* const name : {"choir.csv", "choir.txt", "advice.txt", "fair.txt"})
    std::filesystem::copy(examples / name, temp.Path(name));
  const auto commands = Commands_in(examples.parent_path() / "docs" / document);
  EXPECT_GT(commands.size(), 9U);
  const std::string program_dir = std::filesystem::path(VORLANE_PROGRAM).parent_path();
  for (const auto& [command, output] : commands) {
    const std::string script = "cd '" + temp.Path() + "' && PATH='" + program_dir +
                               "':$PATH && { " + command +
                               "; } > printed 2> told; cat told >> printed";
    temp.Write("script", script);
    EXPECT_EQ(std::system(("sh '" + temp.Path("script") + "'").c_str()), 0) << command;
    const std::string printed = temp.Read("printed");
    EXPECT_TRUE(Is_as_shown(printed, output)) << command << " prints\n" << printed;
  }
}

TEST(Tutorial, ShowsWhatItsCommandsPrint) { Try_commands_of("tutorial.md"); }

TEST(Tutorial, OfPartsShowsWhatItsCommandsPrint) { Try_commands_of("parts.md"); }

}  // namespace
}  // namespace gns
