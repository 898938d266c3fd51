#include "foundation/Errors.h"

#include <gtest/gtest.h>

#include <memory>
#include <type_traits>
#include <vector>

namespace gns {
namespace {

// A handler of one branch must not swallow the other.
static_assert(!std::is_base_of_v<Xerror_msg, Xep_read_file>);
static_assert(std::is_base_of_v<std::logic_error, Xerror_msg>);

TEST(Errors, WordsAreComposedFromTheFields) {
  const std::string no_file = " the file I was reading";
  const Xep_wrong_line line("a b");
  EXPECT_EQ(line.file_name, no_file);
  EXPECT_EQ(line.wrong_line, "a b");

  const Xerror_msg plain(" any\nwords ");
  const Xep_read_file unnamed;
  const Xep_read_file named("x.txt");
  const Xep_file_not_found missing("x.txt");
  const Xep_wrong_line line_of_file("a b", "x.txt");
  const std::vector<std::pair<const std::exception*, std::string>> cases{
      {&plain, " any\nwords "},
      {&unnamed, "ERROR: Something went wrong when trying to read from " + no_file},
      {&named, "ERROR: Something went wrong when trying to read from x.txt"},
      {&missing, "ERROR : File not found: 'x.txt' "},
      {&line, "ERROR: Wrong line found in '" + no_file + "' :\na b"},
      {&line_of_file, "ERROR: Wrong line found in 'x.txt' :\na b"},
  };
  for (const auto& [error, words] : cases) EXPECT_EQ(error->what(), words);
}

TEST(Errors, CopyKeepsItsWordsWhenTheOriginalIsGone) {
  auto original = std::make_unique<Xep_wrong_line>("a long enough line to be on the heap", "f");
  const Xep_wrong_line copy = *original;
  original.reset();
  EXPECT_STREQ(copy.what(),
               "ERROR: Wrong line found in 'f' :\na long enough line to be on the heap");
}

}  // namespace
}  // namespace gns
