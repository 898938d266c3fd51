#include "cli/options/Unheeded_words.h"

#include <gtest/gtest.h>

#include "cli/options/Switches.h"

namespace gns {
namespace {

using Words = std::vector<std::string>;

TEST(UnheededWords, NamesThemAndTheNearestSwitch) {
  const std::string all = "; --help shows all that there are";
  const std::pair<Words, Words> cases[] = {
      {{"-i", "a", "-w", "1", "-D", "-h"}, {}},
      {{"-i", "a", "b", "c", "-D", "x"},
       {"'x' behind -D is not heeded, as -D takes no value",
        "'b' and 1 more behind -i a is not heeded, as -i takes one value; put one with blanks in "
        "quotes"}},
      {{"a b"}, {"'a b' belongs to no switch; did you mean -i 'a b'?"}},
      {{"-K"}, {"'-K' is no switch; did you mean -k?"}},
      {{"-k4"}, {"'-k4' is no switch; did you mean -k 4?"}},
      {{"-o=x y"}, {"'-o=x y' is no switch; did you mean -o 'x y'?"}},
      {{"--output=x"}, {"'--output=x' is no switch; did you mean -o?"}},
      {{"-outdir"}, {"'-outdir' is no switch; did you mean -o?"}},
      {{"--intensty"}, {"'--intensty' is no switch; did you mean -I?"}},
      {{"--hepl"}, {"'--hepl' is no switch; did you mean --help?"}},
      {{"-w", "-0.5"}, {"'-0.5' is no switch; a value can't begin with '-'"}},
      {{"-q"}, {"'-q' is no switch" + all}},
      {{"--"}, {"'--' is no switch" + all}},
      {{"--nonsense\x1b"}, {"'--nonsense\\x1b' is no switch" + all}}};
  for (const auto& [words, texts] : cases) {
    Words arguments{"vorlane"};
    arguments.insert(arguments.end(), words.begin(), words.end());
    EXPECT_EQ(Unheeded_words(Switch_map(Switches(arguments).Params())), texts);
  }
}

}  // namespace
}  // namespace gns
