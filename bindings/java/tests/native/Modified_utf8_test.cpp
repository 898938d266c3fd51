#include "bindings/java/native/Modified_utf8.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>

namespace gns {

namespace {

using namespace std::string_view_literals;

struct Case {
  std::string_view text;
  std::string_view expected;  ///< a question mark stands for the replacement character
};

TEST(ModifiedUtf8, LeavesWhatIsValidAndMendsTheRest) {
  const Case valid[] = {
      {"", ""},
      {"Ada_1~\x7F\x01", "Ada_1~\x7F\x01"},
      {"\xC2\x80\xDF\xBF", "\xC2\x80\xDF\xBF"},
      {"\xE0\xA0\x80\xEF\xBF\xBF", "\xE0\xA0\x80\xEF\xBF\xBF"},
      {"\xED\xA0\x80\xED\xBF\xBF", "\xED\xA0\x80\xED\xBF\xBF"},  // surrogates as they are
      {"a\xC0\x80z", "a\xC0\x80z"},
      {"a\0z"sv, "a\xC0\x80z"},
      {"\xF0\x90\x80\x80", "\xED\xA0\x80\xED\xB0\x80"},
      {"<\xF0\x9F\x98\x80>", "<\xED\xA0\xBD\xED\xB8\x80>"},
      {"\xF4\x8F\xBF\xBF", "\xED\xAF\xBF\xED\xBF\xBF"},
  };
  const Case broken[] = {
      {"\xF4\x90\x80\x80", "????"},  // behind the last
      {"\xF8\x88\x80\x80\x80", "?????"}, {"a\x80z", "a?z"},
      {"\xC1\xBF\xC0\x81", "????"},  // longer than need be
      {"\xE0\x9F\xBF", "???"},           {"\xF0\x8F\xBF\xBF", "????"},
      {"\xE4gypten", "?gypten"},         {"\xFE\xFF", "??"},
      {"\xE2\x82\xC3\xA4", "?\xC3\xA4"},  // as much of a sequence as there is
      {"\xF0\x9F\x98z", "?z"},           {"\xF0\x9F\xF0\x9F\x98\x80", "?\xED\xA0\xBD\xED\xB8\x80"},
      {"\xC3\xC3\xC0", "???"},           {{"\xC3\xA4", 1}, "?"},  // cut off, as names in tables are
      {{"\xE2\x82\xAC", 2}, "?"},        {{"\xF0\x9F\x98\x80", 1}, "?"},
      {{"\xF0\x9F\x98\x80", 3}, "?"},
  };
  Modified_utf8 encoding;
  for (const auto& [text, expected] : valid) EXPECT_EQ(encoding.Of(text), expected);
  for (const auto& [text, expected] : broken) {
    std::string mended;
    for (const char c : expected)
      mended += c == '?' ? std::string("\xEF\xBF\xBD") : std::string(1, c);
    EXPECT_EQ(encoding.Of(text), mended) << text;
  }
}

}  // namespace

}  // namespace gns
