#include "input/Link_file_reader.h"

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

/// What a reader made of a file, in words.
std::string Read(const std::string& path, bool weighted, const literal::Thresholds& t = {}) {
  return Words_after(Link_map(), [&](Link_map& links) {
    if (weighted)
      Read_weighted_links(path, links, t.use_lower, t.lower, t.use_upper, t.upper);
    else
      Read_unw_links(path, links);
  });
}

TEST(LinkFileReader, EqualsFormattedInputOnRandomText) {
  constexpr double nan = std::numeric_limits<double>::quiet_NaN();
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
    const literal::Thresholds thresholds = {seed % 2 == 0, seed % 50 == 0 ? nan : 1.0,
                                            seed % 3 == 0, 3.0};
    const std::string path = temp.Write("links", text);
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

TEST(LinkFileReader, WhatIsNoFileLeavesTheLinksAlone) {
  const Temp_dir temp;
  Link_map links;
  Read_unw_links(temp.Write("links", "a b"), links);
  for (const std::string& path : {temp.Path(), temp.Path("missing"), temp.Path("links") + "/x"}) {
    EXPECT_THROW(Read_unw_links(path, links), Xep_file_not_found);
    EXPECT_THROW(Read_weighted_links(path, links, false, 0, false, 0), Xep_file_not_found);
    EXPECT_EQ(links.size(), 1U);
  }
}

}  // namespace
}  // namespace gns
