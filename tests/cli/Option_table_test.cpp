#include "cli/options/Option_table.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <sstream>

#include "Thrown_message.h"
#include "cli/options/Help_text.h"
#include "cli/options/Input_options.h"
#include "cli/options/Marked_text.h"
#include "cli/options/Output_options.h"
#include "cli/options/Parameters.h"
#include "cli/options/Progress_option.h"
#include "cli/options/Switches.h"
#include "cli/options/Word_table.h"

namespace gns {
namespace {

/// What a command line of one switch sets.
std::vector<bool> Set_by(const Option& option) {
  std::vector<std::string> words{"prog", std::string(option.word)};
  if (!option.argument.empty()) words.emplace_back("4");
  Switch_values v;
  Examin_params(Switch_map(Switches(words).Params()), v);
  EXPECT_EQ(v.errors, option.mandatory ? "" : "You must specify an input file.\n") << option.word;
  return {v.use_input_file,
          v.use_output_dir,
          v.use_lower_threshold,
          v.use_upper_threshold,
          v.use_digits,
          v.use_time_limit,
          v.directed,
          v.use_intensity,
          v.use_single_k,
          v.undirected_declared,
          v.help};
}

/// A switch that is in the table but goes nowhere would be accepted and ignored.
TEST(OptionTable, EachSwitchSetsSomethingOfItsOwn) {
  std::set<std::vector<bool>> settings;
  for (const Option& option : All_options()) {
    if (option.Is_long()) continue;
    const std::vector<bool> setting = Set_by(option);
    EXPECT_EQ(std::ranges::count(setting, true), 1) << option.word;
    EXPECT_TRUE(settings.insert(setting).second) << option.word;
  }
  EXPECT_EQ(settings.size(), 11U);
}

TEST(OptionTable, TellsLongOptionsFromOtherWords) {
  const std::pair<std::string, std::string> cases[] = {{"--progress", "--progress"},
                                                       {"--progress=", "--progress"},
                                                       {"--progress=5", "--progress"},
                                                       {"--progressive", ""},
                                                       {"--help", "--help"},
                                                       {"--help=5", ""},
                                                       {"-h", ""},
                                                       {"--", ""},
                                                       {"", ""}};
  for (const auto& [word, expected] : cases) {
    const Option* found = Long_option_of(word);
    EXPECT_EQ(found == nullptr ? "" : found->word, expected) << word;
    EXPECT_EQ(Switch_of(word) != nullptr, word == "-h") << word;
  }
}

/// What completions offer behind "=" is taken.
TEST(OptionTable, OffersWhatIsTaken) {
  for (const std::string_view choice : Long_option_of("--progress")->choices) {
    if (choice.empty()) continue;
    Progress_option option;
    EXPECT_TRUE(Read_progress_option("--progress=" + std::string(choice), option)) << choice;
  }
  std::set<Format> formats;
  for (const std::string_view choice : Long_option_of("--format")->choices) {
    if (choice.empty()) continue;
    Input_wishes wishes;
    EXPECT_TRUE(Take_input_option({*Long_option_of("--format"), std::string(choice), 1}, wishes));
    formats.insert(*wishes.format);
  }
  for (const std::string_view choice : Long_option_of("--export")->choices)
    if (!choice.empty()) {
      EXPECT_EQ(Formats_in(choice).size(), 1U);
    }
  EXPECT_EQ(formats.size(), All_formats().size());
}

/// What reads them takes the next word as the argument, so no form may say that it can be left out.
TEST(OptionTable, BehindWordsArgumentsAreNeeded) {
  for (const Word& word : All_words())
    for (const Option& option : word.options)
      EXPECT_EQ(option.Form().find("[="), std::string::npos) << word.word << " " << option.word;
}

/// As main does: how many words were taken.
std::size_t Take(const std::vector<const char*>& words) {
  const auto given = Long_argument_at(words);
  if (!given) return 0;
  Input_wishes input;
  Output_wishes output;
  EXPECT_TRUE(Take_input_option(*given, input) || Take_output_option(*given, output));
  return given->words;
}

TEST(LongOptions, TakeWhatTheyCanAndTellWhatTheyCant) {
  struct Case {
    std::vector<const char*> words;
    std::size_t taken;
    std::string told;  ///< beginning; empty if all is well
  };
  const std::vector<Case> cases{
      {{"--format", "csv", "x"}, 2, ""},
      {{"--columns=a,b", "x"}, 1, ""},
      {{"--columns", "2,1,3"}, 2, ""},
      {{"--blanks=_"}, 1, ""},
      {{"--blanks", "\xC2\xB7"}, 2, ""},
      {{"--formats=csv"}, 0, ""},
      {{"--progress"}, 0, ""},
      {{}, 0, ""},
      {{"--export", "csv,gexf"}, 2, ""},
      {{"--export=csv,"}, 0, "There is no format ''; there are gexf, "},
      {{"--format=xls"}, 0, "--format can't be 'xls': it must be links, csv, "},
      {{"--format"}, 0, "--format needs FORMAT.\n"},
      {{"--columns=a"}, 0, "--columns can't be 'a': it must be two or three"},
      {{"--columns=a,,b"}, 0, "--columns can't be 'a,,b'"},
      {{"--columns=a,b,c,d"}, 0, "--columns can't be 'a,b,c,d'"},
      {{"--blanks="}, 0, "--blanks can't be '': it must be a single character"},
      {{"--blanks", " "}, 0, "--blanks can't be ' '"},
      {{"--blanks", "__"}, 0, "--blanks can't be '__'"},
      {{"--blanks", "#"}, 0, "--blanks can't be '#'"}};
  for (const Case& c : cases) {
    std::size_t taken = 0;
    const std::string told = Thrown_message([&] { taken = Take(c.words); });
    EXPECT_EQ(taken, c.taken) << told;
    EXPECT_TRUE(told.starts_with(c.told.empty() ? "nothing was thrown" : c.told)) << told;
  }
}

TEST(HelpText, ShowsEveryOptionInColumns) {
  const std::string help = Help_text("prog");
  EXPECT_TRUE(help.starts_with("Usage: prog -i FILE ")) << help;
  EXPECT_EQ(help.find('`'), std::string::npos);
  std::istringstream lines(help);
  std::set<std::size_t> columns;
  std::size_t options = 0;
  for (std::string line; std::getline(lines, line);) {
    EXPECT_LE(line.size(), 80U) << line;
    EXPECT_FALSE(line.ends_with(' ')) << line;
    if (!line.starts_with("  -")) continue;
    ++options;
    columns.insert(line.find_first_not_of(' ', line.find("  ", 2)));
  }
  EXPECT_EQ(options, All_options().size());
  EXPECT_EQ(columns.size(), 1U);
}

TEST(MarkedText, WrapsBetweenWords) {
  EXPECT_EQ(Without_marks("a `-b C` d"), "a -b C d");
  EXPECT_EQ(Wrapped("", 10), "");
  EXPECT_EQ(Wrapped("one two three", 13), "one two three");
  EXPECT_EQ(Wrapped("one two three", 12), "one two\nthree");
  EXPECT_EQ(Wrapped("one two three", 9, 2, 6), "one\n  two\n  three");
  EXPECT_EQ(Wrapped("a longerthanthat b", 5), "a\nlongerthanthat\nb");
}

}  // namespace
}  // namespace gns
