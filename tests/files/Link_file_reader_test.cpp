#include "files/Link_file_reader.h"

#include <gtest/gtest.h>

#include <limits>
#include <random>
#include <sstream>
#include <string>
#include <vector>

#include "Literal_readers.h"
#include "Table_words.h"
#include "Temp_dir.h"
#include "foundation/Errors.h"

namespace gns {
namespace {

using namespace std::string_literals;

using literal::Thresholds;
using literal::Wrong;

/// What a reader made of a file, in words.
std::string Read(const std::string& path, bool weighted, const Thresholds& t = {}) {
  return Words_after(Link_map(), [&](Link_map& links) {
    if (weighted)
      Read_weighted_links(path, links, t.use_lower, t.lower, t.use_upper, t.upper);
    else
      Read_unw_links(path, links);
  });
}

TEST(LinkFileReader, EqualsFormattedInputOnRandomText) {
  const Temp_dir temp;
  const std::vector<std::string> pieces = {
      " ", "\t", "\n", "\n", "\n", "\r\n", "#",     "a",    "b",        "c ",      " bb ",  "1",
      ".", "-",  "+",  "e",  "2 ", " 3",   "\v",    "\f",   "\0"s,      "x",       "\xff ", "0x1p3",
      " ", "a ", " b", "b ", " c", " 7",   " -1.5", " 1e1", "a b 1\n"s, "c a 2\n"s};
  for (std::uint32_t seed = 0; seed < 2000; ++seed) {
    std::mt19937 random(seed);
    std::ostringstream file;
    // Good lines first, so that more than the first bad line is seen.
    for (std::size_t left = random() % 8; left > 0; --left)
      file << 'n' << random() % 4 << " n" << random() % 4 << ' ' << random() % 5 << '\n';
    for (std::size_t left = random() % 20; left > 0; --left)
      file << pieces[random() % pieces.size()];
    const std::string text = file.str();
    const Thresholds thresholds = {seed % 2 == 0, 1.0, seed % 3 == 0, 3.0};
    const std::string path = temp.Write(std::to_string(seed), text);
    ASSERT_EQ(Read(path, true, thresholds), literal::Links(text, true, thresholds)) << text;
    ASSERT_EQ(Read(path, false), literal::Links(text, false)) << text;
  }
}

/// Lines of many lengths across the borders of the blocks in which a file is read, and many names.
TEST(LinkFileReader, LongFilesAndLongNames) {
  const Temp_dir temp;
  std::mt19937 random(1);
  std::string text;
  for (int line = 0; line < 20000; ++line)
    text += std::string(random() % 50, 'n') + std::to_string(random() % 3000) + " " +
            std::to_string(random() % 3000) + " " + std::to_string(line) + "\n";
  text += std::string(1U << 20U, 'x') + " " + std::string(3U << 20U, 'y') + " 5";
  const std::string path = temp.Write("links", text);
  EXPECT_TRUE(Read(path, true) == literal::Links(text, true));
  EXPECT_TRUE(Read(path, false) == literal::Links(text, false));
}

TEST(LinkFileReader, KnownFiles) {
  struct Case {
    std::string text;
    std::string unweighted;
    std::string weighted;
  };
  const Temp_dir temp;
  for (const Case& c : std::vector<Case>{
           {"", "", ""},
           {"\n \t \n\n# only\n  # comments\n#", "", ""},
           {"x\n\r\n#\n-\n", "", ""},
           {"xy\n", Wrong("xy"), Wrong("xy")},
           {"a b 1\n \txy \t\nb c 1\n", "a b=0|" + Wrong("xy"), "a b=1|" + Wrong("xy")},
           {"a b 1\r\nb a 2\r\n", "a b=0|b a=0|", "a b=1|b a=2|"},
           {"a b 1\nb a 2", "a b=0|b a=0|", "a b=1|b a=2|"},
           {"\ta\tb\v1\f5\n", "a b=0|", "a b=1|"},
           {"a # 2\n", "a #=0|", "a #=2|"},
           {"a # b\n", "a #=0|", Wrong("a # b")},
           {"a b # 2\n", "a b=0|", Wrong("a b # 2")},
           {"a b 2 # c\n", "a b=0|", "a b=2|"},
           {"1 01 1\n01 1.0 1\n", "01 1.0=0|1 01=0|", "01 1.0=1|1 01=1|"},
           {"a b 1\na b 2\nb a 4\n", "a b=0|b a=0|", "a b=3|b a=4|"},
           {"a a 5\nb c 0\nc b -2\n", "b c=0|c b=0|", "b c=0|c b=-2|"},
           {"b c 1\na a\n", "b c=0|", "b c=1|" + Wrong("a a")},
           {"a b x\n", "a b=0|", Wrong("a b x")},
           {"a\0 b 1\na b 2\n"s, "a b=0|a\0 b=0|"s, "a b=2|a\0 b=1|"s},
           {"\0\n"s, "", ""},
           {"\xff\xfe \xc3 1\n", "\xff\xfe \xc3=0|", "\xff\xfe \xc3=1|"},
       }) {
    const std::string path = temp.Write("links", c.text);
    EXPECT_EQ(Read(path, false), c.unweighted) << c.text;
    EXPECT_EQ(Read(path, true), c.weighted) << c.text;
  }
}

TEST(LinkFileReader, TellsTheWrongLine) {
  const Temp_dir temp;
  Link_map links;
  try {
    Read_unw_links(temp.Write("links", "a b\n\txy \n"), links);
    ADD_FAILURE();
  } catch (const Xep_wrong_line& error) {
    EXPECT_STREQ(error.what(), "ERROR: Wrong line found in ' the file I was reading' :\nxy");
  }
}

TEST(LinkFileReader, OddNumbers) {
  const Temp_dir temp;
  for (const std::string number : {"nan", "inf", "-inf", "1e400", "-", "1e", "e5", ".", ",5"})
    EXPECT_EQ(Read(temp.Write("links", "a b " + number), true), Wrong("a b " + number));
  for (const auto& [number, value] :
       std::vector<std::pair<std::string, std::string>>{{"0x1p3", "0"},
                                                        {"3abc", "3"},
                                                        {"+.5", "0.5"},
                                                        {"2.5x", "2.5"},
                                                        {"1e-400", "0"},
                                                        {"-0", "0"},
                                                        {"1,5", "1"},
                                                        {"00012", "12"},
                                                        {"1E+2", "100"},
                                                        {"1e308", "1e+308"}})
    EXPECT_EQ(Read(temp.Write("links", "a b " + number), true), "a b=" + value + "|") << number;
}

TEST(LinkFileReader, ThresholdsTestEachLine) {
  constexpr double nan = std::numeric_limits<double>::quiet_NaN();
  const Temp_dir temp;
  const std::string path = temp.Write(
      "links", "a b 3\na b 3\na c 2\na d 2.000001\na e 5\na f 4.999999\na g -7\na h 70\na i 2\n");
  const std::vector<std::pair<Thresholds, std::string>> cases = {
      {{}, "a b=6|a c=2|a d=2|a e=5|a f=5|a g=-7|a h=70|a i=2|"},
      {{true, 2.0, false, 0}, "a b=6|a d=2|a e=5|a f=5|a h=70|"},
      {{false, 9, true, 5.0}, "a b=6|a c=2|a d=2|a f=5|a g=-7|a i=2|"},
      {{true, 2.0, true, 5.0}, "a b=6|a d=2|a f=5|"},
      {{true, 70, false, 0}, ""},
      {{true, nan, false, 0}, ""},
  };
  for (const auto& [thresholds, expected] : cases)
    EXPECT_EQ(Read(path, true, thresholds), expected);
  EXPECT_EQ(Read(temp.Write("links", "a b 9\nc c 9\nd e\n"), true, {true, 10, false, 0}),
            Wrong("d e"));
}

TEST(LinkFileReader, WhatIsNoFileLeavesTheLinksAlone) {
  const Temp_dir temp;
  Link_map links;
  Read_unw_links(temp.Write("links", "a b"), links);
  for (const std::string& path : {temp.Path(), temp.Path("missing"), temp.Path("links") + "/x"}) {
    for (const bool weighted : {false, true}) {
      try {
        weighted ? Read_weighted_links(path, links, false, 0, false, 0)
                 : Read_unw_links(path, links);
        ADD_FAILURE() << path;
      } catch (const Xep_file_not_found& error) {
        EXPECT_EQ(error.what(), "ERROR : File not found: '" + path + "' ");
        EXPECT_EQ(error.file_name, path);
      }
      EXPECT_EQ(links.size(), 1U);
    }
  }
}

}  // namespace
}  // namespace gns
