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
  EXPECT_STREQ(Xep_wrong_line("a").what(),
               "ERROR: Wrong line found in ' the file I was reading' :\na");
}

}  // namespace
}  // namespace gns
