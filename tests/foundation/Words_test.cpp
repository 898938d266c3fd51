#include "foundation/text/Words.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <random>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "foundation/text/Delimiter_places.h"

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

/// Marks eight bytes at a time, as on processors that can't do more.
template <typename Marks>
struct By_eights {
  Marks marks;
  std::uint64_t operator()(std::uint64_t eight) const { return marks(eight); }
};

template <typename Marks>
std::vector<std::size_t> Places(std::string_view text, Marks marks) {
  std::vector<std::size_t> places;
  Delimiter_places delimiters(text, marks);
  while (places.empty() || places.back() < text.size()) places.push_back(delimiters.Next());
  return places;
}

TEST(DelimiterPlaces, EqualThoseOfALoop) {
  std::mt19937 random(5);
  for (int i = 0; i < 3000; ++i) {
    std::string text;
    for (auto left = random() % 200; left > 0; --left)
      text += i % 2 == 0 ? static_cast<char>(random()) : "a \n!\xa0"[random() % 5];
    std::vector<std::size_t> blanks;
    std::vector<std::size_t> up_to_blank;
    for (std::size_t at = 0; at < text.size(); ++at) {
      if (text[at] == ' ') blanks.push_back(at);
      if (static_cast<unsigned char>(text[at]) <= ' ') up_to_blank.push_back(at);
    }
    blanks.push_back(text.size());
    up_to_blank.push_back(text.size());
    EXPECT_EQ(Places(text, Equal_to(' ')), blanks);
    EXPECT_EQ(Places(text, By_eights<Equal_to>{Equal_to(' ')}), blanks);
    EXPECT_EQ(Places(text, Up_to_blank()), up_to_blank);
    EXPECT_EQ(Places(text, By_eights<Up_to_blank>()), up_to_blank);
  }
}

}  // namespace
}  // namespace gns
