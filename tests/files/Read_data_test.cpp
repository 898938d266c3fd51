#include "files/Read_data.h"

#include <gtest/gtest.h>

#include <random>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

#include "Literal_readers.h"
#include "Table_words.h"
#include "Temp_dir.h"
#include "files/My_string_chopper.h"
#include "files/Pair_fields.h"
#include "files/Results_reader.h"
#include "foundation/Errors.h"

namespace gns {
namespace {

using namespace std::string_literals;

/// What reading made of a table, in words.
template <typename Table, typename... Delimiters>
std::string Read(const std::string& path, Table table, const Delimiters&... delimiters) {
  return Words_after(std::move(table), [&](Table& t) { Read_data(t, path, delimiters...); });
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
            "5=6|7=7|wrong 'ab'"},
           {"5 6x 7\n", "5 6x|old x|", "7 7=7|wrong '5 6x 7'", "5=6|7=7|"},
           {" 5 6\t", "5 6|old x|", "7 7=7|wrong '5 6'", "5=6|7=7|"},
           {"2147483648 1 1", "2147483648 1|old x|", "7 7=7|" + no_pair, "7=7|2147483648=1|"},
           {"1 1 -1\n+2 0x2 4294967296", "1 1|+2 0x2|old x|",
            "1 1=4294967295|7 7=7|wrong "
            "'+2 0x2 4294967296'",
            "1=1|2=0|7=7|"},
           {"a\0b c\r\n"s, "a\0b c|old x|"s, "7 7=7|" + no_pair, "7=7|wrong 'a\0b c\r'"s},
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

TEST(ReadData, EqualsThePlainReadersOnRandomText) {
  const Temp_dir temp;
  const std::vector<std::string> pieces = {
      "\n", "\n\n", ":",  "::", " ",  " ",  ";",  ";;",  "#",  "a",        "1",         "2",
      "-",  "+",    "b ", "\t", " 7", "3 ", "\r", "\0"s, "0x", "\n4 5 6 ", "\n8: 9 1 ", "\n-2:\n"};
  const std::string characters = "\n:; 1";
  for (std::uint32_t seed = 0; seed < 3000; ++seed) {
    std::mt19937 random(seed);
    std::string text;
    for (auto left = random() % 30; left > 0; --left) text += pieces[random() % pieces.size()];
    const std::string path = temp.Write(std::to_string(seed), text);
    ASSERT_EQ(Read(path, Name_pairs()), literal::Pairs(text)) << text;
    ASSERT_EQ(Read(path, Overlap_table()), literal::Overlaps(text)) << text;
    ASSERT_EQ(Read(path, Distribution_table()), literal::Distribution(text)) << text;
    ASSERT_EQ(Words_after(Links_by_index(), [&](auto& table) { Read_com_links(table, path); }),
              literal::Com_links(text))
        << text;

    literal::Records plain;
    std::vector<Character_set> sets;
    for (std::string* set : {&plain.line, &plain.head, &plain.key, &plain.value}) {
      const std::size_t first = sets.size();
      for (auto left = random() % 3; left > 0; --left) *set += characters[first + random() % 2];
      sets.emplace_back();
      for (const char c : *set) sets.back().insert(c);
    }
    ASSERT_EQ(Read(path, Names_by_index(), sets[0], sets[1], sets[2], sets[3]),
              plain.Read(text, false))
        << text;
    ASSERT_EQ(Read(path, Indices_by_index(), sets[0], sets[1], sets[2], sets[3]),
              plain.Read(text, true))
        << text;
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
  Chopper::Set_delims({' '});
  text = " 1 2 x 3";
  EXPECT_THROW(text >> numbers, Xerror_msg);
  EXPECT_EQ(text, " 1 2 x 3");
  const std::string long_names = "c " + std::string(5000, 'd') + "  e";
  text = std::string_view(long_names).substr(0, 202);
  text >> names;
  EXPECT_EQ(names, (Name_list{"c", std::string(200, 'd')}));
  text = long_names;
  text >> names;
  EXPECT_EQ(names, (Name_list{"c", std::string(200, 'd'), "c", std::string(5000, 'd'), "e"}));
}

TEST(StringChopper, AnyCharacterCanDelimitNumbers) {
  for (const std::string text : {" 25  7 ", "3325337", "-25--7", ".25.7", "e25e7e"}) {
    my_string_chopper_class::Set_delims({text[0]});
    Index_list numbers;
    std::string_view rest = text;
    rest >> numbers;
    EXPECT_EQ(std::vector<std::int32_t>(numbers.begin(), numbers.end()),
              (std::vector<std::int32_t>{25, 7}))
        << text;
  }
  my_string_chopper_class::Set_delims_default();
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
