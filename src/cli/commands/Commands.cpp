#include "cli/commands/Commands.h"

#include <array>
#include <charconv>
#include <iostream>

#include "cli/Side_words.h"
#include "cli/commands/Answers.h"
#include "cli/options/Help_text.h"
#include "cli/options/Word_line.h"
#include "foundation/Errors.h"
#include "foundation/text/Shown_text.h"
#include "vorlane/error.h"

namespace gns {

namespace {

void Answer_help(const Word_line& line, std::ostream& out) {
  if (line.arguments.empty()) {
    out << Help_text("vorlane");
    return;
  }
  const Word* const word = Word_of(line.arguments.front());
  if (word == nullptr)
    throw Xerror_msg("There is no word '" + line.arguments.front() + "'; see: vorlane help\n");
  out << Help_on(*word);
}

using Answer = void (*)(const Word_line& line, std::ostream& out);

Answer Answer_of(const Word& word) {
  constexpr std::array<std::pair<std::string_view, Answer>, 9> answers = {
      {{"summary", Answer_summary},
       {"which-k", Answer_which_k},
       {"query", Answer_query},
       {"tree", Answer_tree},
       {"diff", Answer_diff},
       {"export", Answer_export},
       {"report", Answer_report},
       {"parts", Answer_parts},
       {"help", Answer_help}}};
  for (const auto& [name, answer] : answers)
    if (name == word.word) return answer;
  throw Xerror_msg("'" + std::string(word.word) + "' has no answer.\n");
}

Exit_code Code_of(vorlane::Error_kind kind) {
  if (kind == vorlane::Error_kind::stopped) return Exit_code::stopped;
  return kind == vorlane::Error_kind::parameters ? Exit_code::wrong_usage : Exit_code::run_failed;
}

}  // namespace

std::optional<std::uint32_t> K_of(const Word_line& line) {
  const std::string word = line.Value("--k");
  if (word.empty() || word == "all") return std::nullopt;
  std::uint32_t k = 0;
  const auto [end, failure] = std::from_chars(word.data(), word.data() + word.size(), k);
  if (failure != std::errc() || end != word.data() + word.size())
    throw Xerror_msg("--k needs a number or 'all', not " + Quoted(word) + ".\n");
  return k;
}

Exit_code Do_word(const Word& word, const std::vector<std::string>& words) {
  try {
    const Word_line line = Read_word_line(word, words);
    if (line.help_asked)
      std::cout << Help_on(word);
    else
      Answer_of(word)(line, std::cout);
    return Exit_code::finished;
  } catch (const vorlane::Error& failure) {
    Tell(failure.what());
    return Code_of(failure.Kind());
  } catch (const Xerror_msg& failure) {
    Tell(failure.what());
    return Exit_code::wrong_usage;
  }
}

}  // namespace gns
