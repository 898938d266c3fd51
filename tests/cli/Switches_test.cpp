#include "cli/options/Switches.h"

#include <gtest/gtest.h>

#include "cli/options/Parameters.h"
#include "cli/options/gmap.h"
#include "foundation/Errors.h"

namespace gns {
namespace {

using Words = std::vector<std::string>;
using Plain_map = std::map<std::string, Words>;

Switch_map Params_of(Words words) {
  words.insert(words.begin(), "prog");
  return Switch_map(Switches(words).Params());
}

TEST(Switches, SplitsTheArgumentVector) {
  const std::vector<std::pair<Words, Plain_map>> cases{
      {{}, {}},
      {{"x", "-i", "a", "b"}, {{"---noname", {"x"}}, {"-i", {"a", "b"}}}},
      {{"-w", "1", "-D", "-w", "2"}, {{"-D", {}}, {"-w", {"2"}}}},
      {{"-w", "1", "-w"}, {{"-w", {}}}},
      {{"-w", "-0.5"}, {{"-0.5", {}}, {"-w", {}}}},
      {{"-o", "-", ""}, {{"-o", {"-", ""}}}}};
  for (const auto& [words, params] : cases) EXPECT_EQ(Params_of(words), params);
}

TEST(Switches, WantsAProgramName) { EXPECT_THROW(Switches(0, nullptr), Xerror_msg); }

TEST(Gmap, ConstantLookupThrowsOnAMissingKey) {
  const Switch_map map(Plain_map{{"a", {"1"}}});
  EXPECT_EQ(map["a"], Words{"1"});
  EXPECT_THROW(static_cast<void>(map["b"]), std::logic_error);
}

TEST(Parameters, MessagesPileUpInOrder) {
  const std::string unknown = "unknown parameter in parameter list! (Check_keys()).\n";
  const std::string no_input = "You must specify an input file.\n";
  const std::vector<std::pair<Words, std::string>> cases{
      {{"x", "-i", "a"}, unknown},
      {{"-i", "a", "-w", "-0.5"}, unknown},
      {{}, no_input},
      {{"-i"}, " No value is given for switch -i.\n"},
      {{"-i", "a", "-w", "1", "-w"}, " No value is given for switch -w.\n"},
      {{"-i", "a", "-t", "0"}, " The maximal allowed time per node must be positive.\n"},
      {{"-i", "a", "-d", "2147483647"},
       " The number of digits (-d) must not be greater than 255.\n"},
      {{"-i", "a", "-d", "256"}, " The number of digits (-d) must not be greater than 255.\n"},
      {{"-i", "a", "-U", "-D"},
       " The program cannot apply the dirrected and undirected\n"
       " search algorithm at the same time.\n"},
      {{"-k", "2147483648", "-d", "", "-o", "-W", "z", "-D", "-I"},
       no_input + " Unable to interpret the value 'z' for switch -W.\n"
                  " No value is given for switch -o.\n"
                  " Unable to interpret the value '' for switch -d.\n"
                  " No value is given for switch -I.\n"
                  " Unable to interpret the value '2147483648' for switch -k.\n"
                  " The search algorithm cannot apply the link weight \n"
                  " intensity condition when looking for directed communities.\n"}};
  for (const auto& [words, errors] : cases) {
    Switch_values v;
    Examin_params(Params_of(words), v);
    EXPECT_TRUE(v.error);
    EXPECT_EQ(v.errors, errors);
    EXPECT_FALSE(v.help);
  }
}

TEST(Parameters, LooseValuesEachGetTheirOwn) {
  bool use_lower = false, use_upper = false, use_digits = false, use_output = false, help = false;
  bool use_time = false, directed = false, use_intensity = false, use_k = false, error = false;
  double lower = -1, upper = -2, time = -3, intensity = -4;
  unsigned digits = 99, k = 98;
  std::string output = "unset", input, errors = "before ";
  Examin_params(Params_of({"-i", "in", "b", "-o", "out", "-w", "0.5", "-W", "1e1", "-d", "255",
                           "-t", "x", "-k", "3.7", "-I", "0.25"}),
                use_lower, lower, use_upper, upper, use_digits, digits, use_output, output, input,
                help, use_time, time, directed, use_intensity, intensity, use_k, k, error, errors);
  EXPECT_TRUE(use_lower && use_upper && use_digits && use_output && use_time && use_intensity &&
              use_k && error);
  EXPECT_FALSE(help || directed);
  EXPECT_EQ((std::vector<double>{lower, upper, time, intensity}),
            (std::vector<double>{0.5, 10, -3, 0.25}));
  EXPECT_EQ((std::vector<unsigned>{digits, k}), (std::vector<unsigned>{255, 4}));
  EXPECT_EQ(input + output, "inout");
  EXPECT_TRUE(errors.starts_with("before  Unable to interpret the value 'x' for switch -t.\n"));
}

}  // namespace
}  // namespace gns
