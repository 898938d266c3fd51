#include "foundation/text/Words.h"

#include <gtest/gtest.h>

#include <random>
#include <set>
#include <string>
#include <vector>

namespace gns {
namespace {

TEST(CharacterSet, HoldsAnyByte) {
  Character_set set{'\0', '\xff', 'a', 'a'};
  EXPECT_EQ(set.size(), 3U);
  for (int byte = 0; byte < 256; ++byte)
    EXPECT_EQ(set.contains(static_cast<char>(byte)), byte == 0 || byte == 255 || byte == 'a');
  EXPECT_EQ(set, (Character_set{'\xff', 'a', '\0'}));
}

/// Splits random texts at random sets of delimiters, with the look-up of the standard library.
TEST(Words, AreWhatStandsBetweenDelimiters) {
  std::mt19937 random(3);
  for (int i = 0; i < 20000; ++i) {
    std::string text;
    for (auto left = random() % 40; left > 0; --left) text += " :;ab\n"[random() % 6];
    std::string members;
    for (auto left = random() % 3; left > 0; --left) members += " :;"[random() % 3];
    Character_set delimiters;
    for (const char c : members) delimiters.insert(c);

    std::vector<std::string> expected;
    for (std::size_t at = 0; (at = text.find_first_not_of(members, at)) != std::string::npos;) {
      expected.push_back(text.substr(at, text.find_first_of(members, at) - at));
      at += expected.back().size();
    }
    std::vector<std::string> words;
    For_each_word(text, delimiters, [&](std::string_view word) { words.emplace_back(word); });
    ASSERT_EQ(words, expected) << text;

    std::vector<std::string> chopped;
    for (std::string_view rest = text; !rest.empty();)
      chopped.emplace_back(Chop_word(rest, delimiters));
    if (expected.empty() && !text.empty()) expected.emplace_back();  // one word, an empty one
    ASSERT_EQ(chopped, expected) << text;
  }
}

}  // namespace
}  // namespace gns
