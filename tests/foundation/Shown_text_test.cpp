#include "foundation/text/Shown_text.h"

#include <gtest/gtest.h>

namespace gns {
namespace {

using namespace std::string_literals;

TEST(ShownText, EscapesWhatATerminalCouldObey) {
  const std::pair<std::string, std::string> cases[] = {
      {"", ""},
      {"Zo\xC3\xAB \xE7\xBE\xA4 \xF0\x9F\x98\x80\n\t'",
       "Zo\xC3\xAB \xE7\xBE\xA4 \xF0\x9F\x98\x80\n\t'"},
      {"\x1b[31m\x7f\0\r"s, "\\x1b[31m\\x7f\\x00\\x0d"},
      {"\xC2\x9B"
       "31m \xC2\xA0",
       "\\xc2\\x9b"
       "31m \xC2\xA0"},  // a control of two bytes
      {"\x9B \xC3 \xE7\xBE \xC0\x9B \xE0\x82\x9B \xF0\x80\x82\x9B \xFF",
       "\\x9b \\xc3 \\xe7\\xbe \\xc0\\x9b \\xe0\\x82\\x9b \\xf0\\x80\\x82\\x9b \\xff"}};
  for (const auto& [text, escaped] : cases) EXPECT_EQ(Escaped(text), escaped);
}

TEST(ShownText, QuotesFieldsAndWords) {
  EXPECT_EQ(Quoted("a\nb"), "'a\\x0ab'");
  EXPECT_EQ(Quoted(std::string(199, 'x') + "\xC3\xAB"), "'" + std::string(199, 'x') + "...'");
  EXPECT_EQ(Shell_word("net-1.txt"), "net-1.txt");
  EXPECT_EQ(Shell_word(""), "''");
  EXPECT_EQ(Shell_word("it's $x"), "'it'\\''s $x'");
  EXPECT_EQ(Count_characters("Zo\xC3\xAB"), 3U);
}

}  // namespace
}  // namespace gns
