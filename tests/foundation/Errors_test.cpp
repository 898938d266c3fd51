#include "foundation/Errors.h"

#include <gtest/gtest.h>

#include <type_traits>

namespace gns {
namespace {

// A handler of one branch must not swallow the other.
static_assert(!std::is_base_of_v<Xerror_msg, Xep_read_file>);

TEST(Errors, WordsAreComposedFromTheFields) {
  EXPECT_STREQ(Xep_read_file().what(),
               "ERROR: Something went wrong when trying to read from  the file I was reading");
  EXPECT_STREQ(Xep_file_not_found("x.txt").what(), "ERROR : File not found: 'x.txt' ");
  const Xep_wrong_line line("a b", "x.txt");
  EXPECT_STREQ(line.what(), "ERROR: Wrong line found in 'x.txt' :\na b");
  EXPECT_EQ(line.wrong_line, "a b");
  EXPECT_STREQ(Xep_wrong_line("a", Place_in_file{"x.txt", 3, 1, "b", ""}).what(),
               "ERROR: Wrong line found in ' the file I was reading' :\na");
}

TEST(Errors, LongLinesAreCutBetweenCharacters) {
  const std::string head = "ERROR: Wrong line found in ' the file I was reading' :\n";
  const std::string longest(4096, 'x');
  EXPECT_EQ(Xep_wrong_line(longest).what(), head + longest);
  const std::string line = longest.substr(1) + "\xC3\xA9";
  EXPECT_EQ(Xep_wrong_line(line).what(), head + longest.substr(1) + "... (2 more bytes left out)");
  EXPECT_EQ(Xep_wrong_line(line).wrong_line, line);
}

}  // namespace
}  // namespace gns
