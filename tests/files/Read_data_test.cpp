#include "files/Read_data.h"

#include <gtest/gtest.h>

#include <map>
#include <random>
#include <set>
#include <sstream>
#include <string>
#include <vector>

#include "Temp_dir.h"
#include "files/My_string_chopper.h"
#include "files/Pair_fields.h"
#include "foundation/Errors.h"
#include "foundation/My_convert_from_string.h"

namespace gns {
namespace {

using namespace std::string_literals;

/// A table in words: "a b|c d|", "1 -2=3|", "3=4|", "0: a b|".
void Put(std::ostream& out, const Name_pairs& pairs) {
  for (const auto& [first, second] : pairs) out << first << ' ' << second << '|';
}
void Put(std::ostream& out, const Overlap_table& table) {
  for (const auto& [key, shared] : table)
    out << key.first << ' ' << key.second << '=' << shared << '|';
}
void Put(std::ostream& out, const Distribution_table& table) {
  for (const auto& [value, count] : table) out << value << '=' << count << '|';
}
void Put(std::ostream& out, const auto& table) {
  for (const auto& [key, values] : table) {
    out << key << ':';
    for (const auto& value : values) out << ' ' << value;
    out << '|';
  }
}

/// What reading made of a table: the table, and behind it, if it threw, the text of the exception.
template <typename Table, typename... Delimiters>
std::string Read(const std::string& path, Table table, const Delimiters&... delimiters) {
  std::ostringstream out;
  std::string failure;
  try {
    Read_data(table, path, delimiters...);
  } catch (const Xep_wrong_line& error) {
    failure = "wrong '" + error.wrong_line + "' in " + (error.file_name == path ? "it" : "?");
  } catch (const Xerror_msg& error) {
    failure = error.what();
  }
  Put(out, table);
  return out.str() + failure;
}

const std::string no_pair = "ERROR: failed to read pair.\n";
const std::string no_items = "ERROR: input vector has zero size.\n";
const std::string bad_word = "ERROR: failed to convert input";

TEST(ReadData, LinesOfFields) {
  struct Case {
    std::string text;
    std::string pairs;
    std::string overlaps;
    std::string distribution;
  };
  const Temp_dir temp;
  for (const Case& c : std::vector<Case>{
           {"", "old x|", "7 7=7|", "7=7|"},
           {"\n# c\n \t # c\n7\n\t\r\n", "old x|", "7 7=7|", "7=7|"},
           {" 1 -2 3\t\n1 -2 4 x\n", "1 -2|1 -2|old x|", "1 -2=4|7 7=7|", "1=4294967294|7=7|"},
           {"5 6 7\nab\n5 5 5\n", "5 6|old x|" + no_pair, "5 6=7|7 7=7|" + no_pair,
            "5=6|7=7|wrong 'ab' in it"},
           {"5 6x 7\n", "5 6x|old x|", "7 7=7|wrong '5 6x 7' in it", "5=6|7=7|"},
           {" 5 6\t", "5 6|old x|", "7 7=7|wrong '5 6' in it", "5=6|7=7|"},
           {"2147483648 1 1", "2147483648 1|old x|", "7 7=7|" + no_pair, "7=7|2147483648=1|"},
           {"1 1 -1\n+2 0x2 4294967296", "1 1|+2 0x2|old x|",
            "1 1=4294967295|7 7=7|wrong "
            "'+2 0x2 4294967296' in it",
            "1=1|2=0|7=7|"},
           {"a\0b c\r\n"s, "a\0b c|old x|"s, "7 7=7|" + no_pair, "7=7|wrong 'a\0b c\r' in it"s},
       }) {
    const std::string path = temp.Write("file", c.text);
    EXPECT_EQ(Read(path, Name_pairs{{"old", "x"}}), c.pairs);
    EXPECT_EQ(Read(path, Overlap_table{{{7, 7}, 7}}), c.overlaps);
    EXPECT_EQ(Read(path, Distribution_table{{7, 7}}), c.distribution);
  }
}

TEST(ReadData, RecordsOfItems) {
  struct Case {
    std::string text;
    std::string names;
    std::string indices;
    std::string warnings;  // of the first reading
  };
  const Temp_dir temp;
  for (const Case& c : std::vector<Case>{
           {"", "9: x|", "9: 9|", ""},
           {"12: 1 22 \n-3: 4\n", "-3: 4|9: x|12: 1 22|", "-3: 4|9: 9|12: 1 22|", ""},
           {"\n\n0: 1\n\n\n# 5: 5\n1: 2\n\n", "0: 1|1: 2|9: x|", "0: 1|1: 2|9: 9|", ""},
           {"4: 1\n4:   2  3\n9: 4\n", "4: 2 3|9: 4|", "4: 2 3|9: 4|", ""},
           {"1: 2\n12:\n3: 4\n", "1: 2|9: x|" + no_items, "1: 2|9: 9|" + no_items, ""},
           {"12: \n", "9: x|" + no_items, "9: 9|" + no_items, ""},
           {"12 1 2\n", "9: x|" + no_items, "9: 9|" + no_items, ""},
           {"7\n", "9: x|" + no_items, "9: 9|" + no_items, ""},
           {"7", "9: x|", "9: 9|", ""},
           {"#7", "9: x|", "9: 9|", ""},
           {"7: 1 23", "7: 1 2|9: x|", "7: 1 2|9: 9|", ""},
           {"x y: 1\n", "9: x|" + bad_word + "x\n", "9: 9|" + bad_word + "x\n", ""},
           {" # x\n", "9: x|" + bad_word + "#\n", "9: 9|" + bad_word + "#\n", ""},
           {" : 1\n", "9: x|" + bad_word + "\n", "9: 9|" + bad_word + "\n", ""},
           {"2.5: 1\n", "3: 1|9: x|", "3: 1|9: 9|", "WARNING: input'2.5' is suspicious...\n"},
           {"8: 1 a 2\n", "8: 1 a 2|9: x|", "9: 9|" + bad_word + " 'a'\n", ""},
           {"::3 4: 5:6\n", "3: 5:6|9: x|", "9: 9|" + bad_word + " '5:6'\n", ""},
           {"\t3\t: 4\t\r\n", "3: 4\t\r|9: x|", "3: 4|9: 9|", ""},
           {"1: \0 a\xff\n"s, "1: \0 a\xff|9: x|"s, "9: 9|" + bad_word + " '"s, ""},
       }) {
    const std::string path = temp.Write("file", c.text);
    testing::internal::CaptureStdout();
    EXPECT_EQ(Read(path, Names_by_index{{9, {"x"}}}, '\n', ':', ' ', ' '), c.names) << c.text;
    EXPECT_EQ(testing::internal::GetCapturedStdout(), c.warnings) << c.text;
    testing::internal::CaptureStdout();
    EXPECT_EQ(Read(path, Indices_by_index{{9, {9}}}, '\n', ':', ' ', ' '), c.indices) << c.text;
    testing::internal::GetCapturedStdout();
  }
}

/// The record form told character by character.
struct Literal_reader {
  using Set = std::set<char>;
  Set line, head, key, value;
  std::map<std::int32_t, std::vector<std::string>> table;

  static std::string Chop(std::string& text, const Set& set) {
    const auto in = [&](std::size_t i) { return i < text.size() && set.contains(text[i]); };
    std::size_t start = 0;
    while (in(start)) ++start;
    std::size_t end = start;
    while (end < text.size() && !in(end)) ++end;
    const std::string word = text.substr(start, end - start);
    while (in(end)) ++end;
    text.erase(0, end);
    return word;
  }
  bool Take(std::string record) {
    std::string first = Chop(record, head);
    const std::string index = Chop(first, key);
    std::int32_t number = 0;
    bool suspicious = false;
    if (!Convert_from_string(index, number, suspicious)) return false;
    std::vector<std::string> words;
    for (std::string word; !(word = Chop(record, value)).empty();) words.push_back(word);
    if (!words.empty()) table[number] = words;
    return !words.empty();
  }
  bool Read(const std::string& text) {
    std::string current;
    for (const char c : text) {
      if (!line.contains(c)) {
        current += c;
        continue;
      }
      if (!current.empty() && current[0] != '#' && !Take(current)) return false;
      current.clear();
    }
    if (current.size() <= 1 || current[0] == '#') return true;
    current.pop_back();
    return Take(current);
  }
};

TEST(ReadData, AnyDelimitersOnRandomText) {
  const Temp_dir temp;
  const std::string characters = "\n:; a";
  for (std::uint32_t seed = 0; seed < 3000; ++seed) {
    std::mt19937 random(seed);
    Literal_reader literal;
    std::vector<Character_set> sets(4);
    std::size_t i = 0;
    for (auto* set : {&literal.line, &literal.head, &literal.key, &literal.value}) {
      for (auto left = random() % 3; left > 0; --left)
        set->insert(characters[(i + random() % 2) % characters.size()]);
      for (const char c : *set) sets[i].insert(c);
      ++i;
    }
    std::string text;
    for (auto left = random() % 60; left > 0; --left) text += "\n\n:: ;;#a12-b"s[random() % 13];
    const bool good = literal.Read(text);
    std::ostringstream expected;
    Put(expected, literal.table);
    const std::string got = Read(temp.Write(std::to_string(seed), text), Names_by_index{}, sets[0],
                                 sets[1], sets[2], sets[3]);
    ASSERT_EQ(got.substr(0, got.find("ERROR")), expected.str()) << text;
    ASSERT_EQ(got.find("ERROR") == std::string::npos, good) << text;
  }
}

TEST(ReadData, RefusesWhatIsNoFile) {
  const Temp_dir temp;
  EXPECT_THROW(Read(temp.Path("missing"), Name_pairs{}), Xep_file_not_found);
  EXPECT_THROW(Read(temp.Path(), Names_by_index{}, '\n', ':', ' ', ' '), Xep_file_not_found);
}

TEST(StringChopper, TakesWordsOffTheFront) {
  using Chopper = my_string_chopper_class;
  EXPECT_EQ(MY_STRING_CHOPPER_CLASS_DEF_INI_DELIMETERES, Character_set{});
  Chopper::Set_delims_default();
  EXPECT_EQ(Chopper::delimeters, (Character_set{' ', '\t', '\n'}));

  std::string_view text = " \ta\n\nb 7 1e1 8x 2.5 5 ";
  std::string word;
  text >> word >> word;
  EXPECT_EQ(word, "b");
  std::int32_t number = 0;
  testing::internal::CaptureStdout();
  text >> number >> number;
  EXPECT_EQ(testing::internal::GetCapturedStdout(), "WARNING: input'1e1' is suspicious...\n");
  EXPECT_EQ(number, 10);
  EXPECT_THROW(text >> number, Xerror_msg);
  EXPECT_EQ(text, "8x 2.5 5 ");  // a word that is refused stays

  text >> word;
  Index_list numbers = {1};
  testing::internal::CaptureStdout();
  text >> numbers;
  EXPECT_EQ(testing::internal::GetCapturedStdout(), "WARNING: input '2.5' is suspicious...\n");
  EXPECT_EQ(std::vector<std::int32_t>(numbers.begin(), numbers.end()),
            (std::vector<std::int32_t>{1, 3, 5}));
  EXPECT_EQ(text, "");
  Name_list names;
  EXPECT_THROW(text >> names, Xerror_msg);
  const std::string long_names = "c " + std::string(5000, 'd') + "  e";
  text = std::string_view(long_names).substr(0, 202);
  text >> names;
  EXPECT_EQ(names, (Name_list{"c", std::string(200, 'd')}));
  text = long_names;
  text >> names;
  EXPECT_EQ(names, (Name_list{"c", std::string(200, 'd'), "c", std::string(5000, 'd'), "e"}));
}

TEST(PairFields, FormattedInputOfBothFields) {
  struct Case {
    std::string text;
    std::string names;  // empty: refused
    std::string numbers;
  };
  for (const Case& c : std::vector<Case>{{"a b c", "a,b", ""},
                                         {"\v1\n-2x", "1,-2x", "1,-2"},
                                         {"1", "", ""},
                                         {" ", "", ""},
                                         {"1 2147483648", "1,2147483648", ""}}) {
    std::pair<std::string, std::string> names{"-", "-"};
    std::pair<std::string, std::string> converted = names;
    std::pair<std::int32_t, std::int32_t> numbers{7, 7};
    std::istringstream stream(c.text);
    bool suspicious = true;
    if (c.names.empty()) {
      EXPECT_THROW(stream >> names, Xerror_msg);
      EXPECT_FALSE(Convert_from_string(c.text, converted, suspicious));
    } else {
      stream >> names;
      EXPECT_EQ(names.first + "," + names.second, c.names);
      EXPECT_TRUE(Convert_from_string(c.text, converted, suspicious));
    }
    EXPECT_EQ(converted, names);
    EXPECT_TRUE(suspicious);  // left alone
    stream = std::istringstream(c.text);
    if (c.numbers.empty()) {
      EXPECT_THROW(stream >> numbers, Xerror_msg);
      EXPECT_EQ(numbers.first, 7);
    } else {
      stream >> numbers;
      EXPECT_EQ(std::to_string(numbers.first) + "," + std::to_string(numbers.second), c.numbers);
    }
  }
}

}  // namespace
}  // namespace gns
