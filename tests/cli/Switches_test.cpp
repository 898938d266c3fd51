#include "cli/Switches.h"

#include <gtest/gtest.h>

#include <array>

#include "cli/Parameters.h"
#include "cli/gmap.h"
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

  const std::array<const char*, 3> argv{"prog", "-i", "net"};
  const Switches switches(3, argv.data());
  EXPECT_EQ(switches.Prog_name(), "prog");
  EXPECT_EQ(switches.Params(), (Plain_map{{"-i", {"net"}}}));
}

TEST(Switches, WantsAProgramName) {
  try {
    const Switches switches(0, nullptr);
    FAIL();
  } catch (const Xerror_msg& error) {
    EXPECT_STREQ(error.what(), " program name missing in Switches...\n");
  }
}

TEST(Gmap, ConstantLookupThrowsOnAMissingKey) {
  Switch_map map(Plain_map{{"a", {"1"}}});
  const Switch_map& constant = map;
  EXPECT_EQ(constant["a"], Words{"1"});
  try {
    static_cast<void>(constant["b"]);
    FAIL();
  } catch (const std::logic_error& error) {
    EXPECT_STREQ(error.what(), "ERROR: gmap:: Missing Key in \n const T & gmap[] const.\n");
  }
  map["b"] = {"2"};
  EXPECT_EQ(constant["b"], Words{"2"});
}

TEST(Parameters, ReadsEverySwitch) {
  Switch_values v;
  Examin_params(Params_of({"-i", "a", "b", "-o", "out", "-w", "0.5", "-W", "1e1", "-d", "3", "-t",
                           "2", "-k", "3.7", "-U", "x"}),
                v);
  EXPECT_FALSE(v.error || v.help || v.directed || v.use_intensity) << v.errors;
  EXPECT_TRUE(v.use_output_dir && v.use_lower_threshold && v.use_upper_threshold && v.use_digits &&
              v.use_time_limit && v.use_single_k && v.undirected_declared);
  EXPECT_EQ(v.input_file + v.output_dir, "aout");
  EXPECT_EQ(v.lower_threshold, 0.5);
  EXPECT_EQ(v.upper_threshold, 10);
  EXPECT_EQ(v.digits, 3);
  EXPECT_EQ(v.time_limit, 2);
  EXPECT_EQ(v.single_k, 4);

  Switch_values w;
  Examin_params(Params_of({"-i", "a", "-I", "0.25", "-h"}), w);
  EXPECT_TRUE(w.use_intensity && w.help && !w.error);
  EXPECT_EQ(w.intensity_threshold, 0.25);
}

TEST(Parameters, MessagesPileUpInOrder) {
  const std::string unknown = "unknown parameter in parameter list! (Check_keys()).\n";
  const std::string no_input = "You must specify an input file.\n";
  const std::vector<std::pair<Words, std::string>> cases{
      {{"x", "-i", "a"}, unknown},
      {{"-h", "-q"}, unknown},
      {{"-i", "a", "-w", "-0.5"}, unknown},
      {{"-i", "a", "-d", "3", "-H"}, unknown},
      {{}, no_input},
      {{"-i"}, " No value is given for switch -i.\n"},
      {{"-i", "a", "-w", "1", "-w"}, " No value is given for switch -w.\n"},
      {{"-i", "a", "-w", "x", "-W", "1"}, " Unable to interpret the value 'x' for switch -w.\n"},
      {{"-i", "a", "-w", "1", "-W", "y"}, " Unable to interpret the value 'y' for switch -W.\n"},
      {{"-i", "a", "-t", "1s"}, " Unable to interpret the value '1s' for switch -t.\n"},
      {{"-i", "a", "-t", "0"}, " The maximal allowed time per node must be positive.\n"},
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
  Examin_params(Params_of({"-i", "in", "-W", "8", "-t", "x", "-k", "5"}), use_lower, lower,
                use_upper, upper, use_digits, digits, use_output, output, input, help, use_time,
                time, directed, use_intensity, intensity, use_k, k, error, errors);
  EXPECT_TRUE(use_upper && use_time && use_k && error);
  EXPECT_FALSE(use_lower || use_digits || use_output || help || directed || use_intensity);
  EXPECT_EQ((std::vector<double>{lower, upper, time, intensity}),
            (std::vector<double>{-1, 8, -3, -4}));
  EXPECT_EQ((std::vector<unsigned>{digits, k}), (std::vector<unsigned>{99, 5}));
  EXPECT_EQ(input + output, "inunset");
  EXPECT_EQ(errors,
            "before  Unable to interpret the value 'x' for switch -t.\n"
            " The maximal allowed time per node must be positive.\n");
}

}  // namespace
}  // namespace gns
