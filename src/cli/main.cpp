#include <cerrno>
#include <filesystem>
#include <iostream>
#include <string_view>
#include <system_error>

#include "cli/Program_run.h"
#include "cli/Stop_signals.h"
#include "cli/Usage.h"

namespace {

using gns::Exit_code;

Exit_code Answer(int argc, const char* const* argv) {
  for (int i = 1; i < argc; ++i) {
    const std::string_view word = argv[i];
    if (word == "--help") {
      gns::Print_detailed_usage(std::filesystem::path(argv[0]).filename());
      gns::Print_program_notes();
      return Exit_code::finished;
    }
    if (word == "--version") {
      gns::Print_version();
      return Exit_code::finished;
    }
  }
  return gns::Run_program(argc, argv);
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
  Exit_code code = Answer(argc, argv);
  if (!Output_arrived() && code == Exit_code::finished) code = Exit_code::run_failed;
  return static_cast<int>(code);
}
