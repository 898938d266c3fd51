#include "cli/options/Help_text.h"

#include <sstream>
#include <string_view>

#include "cli/options/Marked_text.h"
#include "cli/options/Option_table.h"
#include "cli/options/Program_facts.h"
#include "cli/options/Word_table.h"

namespace gns {

namespace {

constexpr std::size_t width = 80;

void Put_options(const Option_group& group, std::ostream& out) {
  constexpr std::size_t column = 20;
  out << "\n" << group.title << ":\n";
  for (const Option& option : All_options()) {
    if (option.group != group.group) continue;
    std::string meaning(option.summary);
    if (!option.without.empty()) meaning.append(" [").append(option.without).append("]");
    out << Help_entry(option.Form(), column, meaning);
  }
}

void Put_words(const std::string& prog_name, std::ostream& out) {
  constexpr std::size_t column = 28;
  out << "\nWords in place of options; " << prog_name << " help WORD tells more:\n";
  for (const Word& word : All_words()) {
    std::string term(word.word);
    term.append(" ").append(word.arguments);
    out << Help_entry(term, column, word.summary);
  }
}

void Put_exit_codes(std::ostream& out) {
  constexpr std::size_t column = 7;
  out << "\nExit codes:\n";
  for (const Exit_meaning& exit : Exit_meanings())
    out << Help_entry(std::to_string(static_cast<int>(exit.code)), column, exit.meaning);
}

void Put_variables(std::ostream& out) {
  constexpr std::size_t column = 24;
  out << "\nEnvironment:\n";
  for (const Variable& variable : Variables())
    out << Help_entry(variable.name, column, variable.meaning);
}

void Put_examples(const std::string& prog_name, std::ostream& out) {
  constexpr std::size_t column = 6;
  out << "\nExamples:\n";
  for (const Example& example : Examples())
    out << Help_entry(prog_name + " " + std::string(example.arguments), column, example.effect);
}

}  // namespace

std::string Help_text(const std::string& prog_name) {
  std::ostringstream out;
  out << "Usage: " << prog_name << " " << Without_marks(Synopsis()) << "\n\n"
      << Wrapped(Purpose(), width) << "\n\nIn brackets: what holds without the option.\n";
  for (const Option_group& group : Option_groups()) Put_options(group, out);
  Put_words(prog_name, out);
  Put_exit_codes(out);
  Put_variables(out);
  Put_examples(prog_name, out);
  out << "\n"
      << Wrapped(prog_name +
                     " -h explains the switches one by one, README.md what the results "
                     "mean, docs/file-formats.md each of their files.",
                 width)
      << "\n";
  return out.str();
}

}  // namespace gns
