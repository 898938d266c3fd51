#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <filesystem>
#include <iostream>
#include <string_view>
#include <system_error>
#include <vector>

#include "cli/Program_run.h"
#include "cli/Side_words.h"
#include "cli/commands/Commands.h"
#include "cli/options/Help_text.h"
#include "cli/options/Long_wishes.h"
#include "cli/options/Usage.h"
#include "cli/options/Word_table.h"
#include "cli/terminal/Stop_signals.h"
#include "cli/terminal/Terminal_escape.h"
#include "foundation/Errors.h"

namespace {

using gns::Exit_code;

Exit_code Answer(int argc, const char* const* argv) {
  if (const gns::Word* const word = argc > 1 ? gns::Word_of(argv[1]) : nullptr) {
    if (word->word != "run") return gns::Do_word(*word, {argv + 2, argv + argc});
    std::vector<const char*> rest(argv, argv + argc);
    rest.erase(rest.begin() + 1);
    return Answer(argc - 1, rest.data());
  }
  std::vector<const char*> words(argv, argv + std::min(argc, 1));
  gns::Long_wishes wishes;
  const auto rest = gns::Take_long_words({argv + words.size(), argv + argc}, wishes);
  words.insert(words.end(), rest.begin(), rest.end());
  const std::string_view last = words.empty() ? "" : words.back();
  if (last == "--help") {
    std::cout << gns::Help_text(std::filesystem::path(argv[0]).filename());
    return Exit_code::finished;
  }
  if (last == "--version") {
    gns::Print_version();
    return Exit_code::finished;
  }
  return gns::Run_program(static_cast<int>(words.size()), words.data(), wishes);
}

/// A reader that went away is no failure, any other loss of output is.
bool Output_arrived() {
  if (std::cout.flush() || errno == EPIPE) return true;
  std::cerr << "vorlane: standard output: " << std::generic_category().message(errno) << "\n";
  return false;
}

}  // namespace

int main(int argc, char** argv) {
  gns::Handle_signals();
  const gns::Terminal_escape escaped_output(std::cout, STDOUT_FILENO);
  const gns::Terminal_escape escaped_errors(std::cerr, STDERR_FILENO);
  Exit_code code = Exit_code::wrong_usage;
  try {
    code = Answer(argc, argv);
  } catch (const gns::Xerror_msg& wrong_option) {
    gns::Tell(wrong_option.what());
  }
  if (!Output_arrived() && code == Exit_code::finished) code = Exit_code::run_failed;
  return static_cast<int>(code);
}
