#include "bridge/Modified_utf8.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>

namespace gns {

namespace {

using namespace std::string_view_literals;

struct Case {
  const char* what;
  std::string_view text;
  std::string_view expected;
};

TEST(ModifiedUtf8, LeavesWhatIsValidAndMendsTheRest) {
  const Case cases[] = {
      {"nothing", "", ""},
      {"plain", "Ada_1~\x7F\x01", "Ada_1~\x7F\x01"},
      {"two bytes, first and last", "\xC2\x80\xDF\xBF", "\xC2\x80\xDF\xBF"},
      {"three bytes, first and last", "\xE0\xA0\x80\xEF\xBF\xBF", "\xE0\xA0\x80\xEF\xBF\xBF"},
      {"surrogates as they are", "\xED\xA0\x80\xED\xBF\xBF", "\xED\xA0\x80\xED\xBF\xBF"},
      {"zero of two bytes", "a\xC0\x80z", "a\xC0\x80z"},
      {"zero byte", "a\0z"sv, "a\xC0\x80z"},
      {"first of four bytes", "\xF0\x90\x80\x80", "\xED\xA0\x80\xED\xB0\x80"},
      {"a face", "<\xF0\x9F\x98\x80>", "<\xED\xA0\xBD\xED\xB8\x80>"},
      {"last of four bytes", "\xF4\x8F\xBF\xBF", "\xED\xAF\xBF\xED\xBF\xBF"},
      {"behind the last", "\xF4\x90\x80\x80", "????"},
      {"five bytes", "\xF8\x88\x80\x80\x80", "?????"},
      {"lone continuation", "a\x80z", "a?z"},
      {"too long for one byte", "\xC1\xBF\xC0\x81", "????"},
      {"too long for two bytes", "\xE0\x9F\xBF", "???"},
      {"too long for three bytes", "\xF0\x8F\xBF\xBF", "????"},
      {"Latin-1", "\xE4gypten", "?gypten"},
      {"no byte of UTF-8", "\xFE\xFF", "??"},
      {"broken off after one of two", "\xC3", "?"},
      {"broken off after two of three", "\xE2\x82", "??"},
      {"broken off after three of four", "\xF0\x9F\x98", "???"},
      {"broken off by the next character", "\xE2\x82\xC3\xA4", "??\xC3\xA4"},
      {"broken off by a plain one", "\xF0\x9F\x98z", "???z"},
  };
  Modified_utf8 encoding;
  for (const auto& [what, text, expected] : cases) {
    std::string mended;  // a question mark stands for the replacement character
    for (const char c : expected)
      mended += c == '?' ? std::string("\xEF\xBF\xBD") : std::string(1, c);
    EXPECT_EQ(encoding.Of(text), mended) << what;
  }
}

/// The text is cut out of a longer one, as names in tables are.
TEST(ModifiedUtf8, LooksAtNothingBehindTheText) {
  const std::string_view whole = "\xF0\x9F\x98\x80";
  Modified_utf8 encoding;
  for (std::size_t size = 1; size < whole.size(); ++size)
    EXPECT_EQ(std::string_view(encoding.Of(whole.substr(0, size))).size(), 3 * size);
}

}  // namespace

}  // namespace gns
