#include "cli/options/Long_wishes.h"

#include <string_view>

#include "cli/options/Input_options.h"
#include "cli/options/Jobs_option.h"
#include "cli/options/Long_argument.h"

namespace gns {

std::vector<const char*> Take_long_words(std::span<const char* const> line, Long_wishes& wishes) {
  std::vector<const char*> rest;
  for (std::size_t i = 0; i < line.size(); ++i) {
    const std::string_view word = line[i];
    if (Read_progress_option(word, wishes.progress)) continue;
    if (const auto given = Long_argument_at(line.subspan(i))) {
      if (!Take_input_option(*given, wishes.input) && !Take_jobs_option(*given, wishes.jobs))
        Take_output_option(*given, wishes.output);
      i += given->words - 1;
      continue;
    }
    if (word == "--json") {
      wishes.output.json = true;
      continue;
    }
    rest.push_back(line[i]);
    if (word == "--help" || word == "--version") break;
  }
  return rest;
}

}  // namespace gns
