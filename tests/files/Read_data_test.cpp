#include "files/Read_data.h"

#include <gtest/gtest.h>

#include <algorithm>
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
#include "foundation/io/Line_reader.h"

namespace gns {
namespace {

using namespace std::string_literals;

/// What reading made of a table, in words.
template <typename Table, typename... Delimiters>
std::string Read(const std::string& path, Table table, const Delimiters&... delimiters) {
  return Words_after(std::move(table), [&](Table& t) { Read_data(t, path, delimiters...); });
}

/// The tables are not cleared first, and keep what came before a failure.
TEST(ReadData, TablesInUse) {
  const Temp_dir temp;
  const std::string lines = temp.Write("lines", "5 6 1\n7 7 2\n5 6 3\nxy\n");
  EXPECT_EQ(Read(lines, Name_pairs{{"old", "x"}}),
            "5 6|7 7|5 6|old x|ERROR: failed to read pair.\n");
  EXPECT_EQ(Read(lines, Overlap_table{{{7, 7}, 7}, {{8, 8}, 8}}),
            "5 6=3|7 7=2|8 8=8|ERROR: failed to read pair.\n");
  EXPECT_EQ(Read(lines, Distribution_table{{7, 9}, {8, 8}}), "5=6|7=7|8=8|wrong 'xy'");
  const std::string records = temp.Write("records", "9: 1\n4: 2 3\n4: 5\n8: 6 -\n");
  EXPECT_EQ(Read(records, Names_by_index{{9, {"x"}}, {10, {"y"}}}, '\n', ':', ' ', ' '),
            "4: 5|8: 6 -|9: 1|10: y|");
  EXPECT_EQ(Read(records, Indices_by_index{{9, {9}}, {8, {8}}}, '\n', ':', ' ', ' '),
            "4: 5|8: 8|9: 1|ERROR: failed to convert input '-'\n");
  const std::string blocks = temp.Write("blocks", "9:\na b\n4:\nc d\n8:\nx\n");
  EXPECT_EQ(Words_after(Links_by_index{{9, {{"x", "y"}}}, {8, {{"y", "z"}}}},
                        [&](Links_by_index& table) { Read_com_links(table, blocks); }),
            "4: c d||8: y z||9: a b||ERROR: unable to convert link 'x'\n");
}

TEST(ReadData, EqualsThePlainReadersOnRandomText) {
  const Temp_dir temp;
  const std::vector<std::string> pieces = {
      "\n", "\n\n", ":",  "::", " ",  " ",  ";",  ";;",  "#",  "a",        "1",         "2",
      "-",  "+",    "b ", "\t", " 7", "3 ", "\r", "\0"s, "0x", "\n4 5 6 ", "\n8: 9 1 ", "\n-2:\n"};
  // What is taken many bytes at a time, with lengths and forms around the bounds of that.
  const std::vector<std::string> long_pieces = {"ab cd\n",
                                                "e 12:f\n",
                                                "\n7: ",
                                                "12345678 ",
                                                "123456789 ",
                                                "1234567890 ",
                                                "-7 ",
                                                "12/45 ",
                                                "1:345678 ",
                                                "\n-8:\n",
                                                "\x80\xa0 \xff\n",
                                                "#a b\n",
                                                "a b:\n",
                                                "a\tb\n",
                                                "a  b\n",
                                                " a b\n",
                                                "a b \n",
                                                "a b c\n",
                                                "gh"s + "\0 i\n"s,
                                                "jklm nopq\n",
                                                "12: ab cd \n",
                                                "-0: 5 -67 \n",
                                                "3: 4\n",
                                                "123456789: 8 \n",
                                                "1:: 2 \n",
                                                "5:  6 \n",
                                                "6: \n",
                                                "+7: +8 \n",
                                                "9: 1\t2 3 \n",
                                                std::string(15, 'x') + " ",
                                                std::string(16, 'y') + " ",
                                                std::string(31, 'r') + " ",
                                                std::string(127, 's') + " t\n",
                                                std::string(128, 'u') + " ",
                                                "v " + std::string(128, 'w') + "\n"};
  const std::vector<std::string> delimiters = {"\n:", ":;", "; ", " 1-e."};
  for (std::uint32_t seed = 0; seed < 3000; ++seed) {
    std::mt19937 random(seed);
    std::string text;
    const auto& choice = seed % 2 == 0 ? pieces : long_pieces;
    for (auto left = random() % 60; left > 0; --left) text += choice[random() % choice.size()];
    const std::string path = temp.Write("file", text);
    ASSERT_EQ(Read(path, Name_pairs()), literal::Pairs(text)) << text;
    ASSERT_EQ(Read(path, Overlap_table()), literal::Overlaps(text)) << text;
    ASSERT_EQ(Read(path, Distribution_table()), literal::Distribution(text)) << text;
    ASSERT_EQ(Words_after(Links_by_index(), [&](auto& table) { Read_com_links(table, path); }),
              literal::Com_links(text))
        << text;

    literal::Records plain;
    if (seed % 4 == 1) plain = {"\n", ":", " ", " "};
    std::vector<Character_set> sets;
    for (std::string* set : {&plain.line, &plain.head, &plain.key, &plain.value}) {
      const std::string& of_set = delimiters[sets.size()];
      for (auto left = seed % 4 == 1 ? 0 : random() % 3; left > 0; --left)
        *set += of_set[random() % of_set.size()];
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

/// Rows of a few bytes and of more than is read at once, over many reads.
TEST(ReadData, TakesRowsAcrossReads) {
  const Temp_dir temp;
  const Kept_buffer of_both_files;
  std::mt19937 random(1);
  std::string of_names = "# c\n\n";
  std::string of_indices = of_names;
  Names_by_index names;
  Indices_by_index indices;
  for (std::int32_t row = 0; row < 20000; ++row) {
    const std::int32_t key = row < 15000 ? row : -row;
    for (std::string* text : {&of_names, &of_indices}) *text += std::to_string(key) + ": ";
    Name_list& names_of_row = names.Add(key);
    Index_list& indices_of_row = indices.Add(key);
    for (auto left = row % 4000 == 7 ? 50000 : 1 + random() % 20; left > 0; --left) {
      const auto value = static_cast<std::int32_t>(random() >> random() % 32U);
      const std::string name = std::to_string(value) + std::string(random() % 20, 'x');
      of_indices += std::to_string(value) + ' ';
      of_names += name + ' ';
      names_of_row.push_back(name);
      indices_of_row.push_back(value);
    }
    for (std::string* text : {&of_names, &of_indices}) *text += '\n';
  }
  names.Finish();
  indices.Finish();
  Names_by_index names_read;
  Read_data(names_read, temp.Write("names", of_names), '\n', ':', ' ', ' ');
  EXPECT_TRUE(names_read == names);
  Indices_by_index indices_read;
  Read_data(indices_read, temp.Write("indices", of_indices), '\n', ':', ' ', ' ');
  EXPECT_TRUE(indices_read == indices);
}

TEST(ReadData, RefusesWhatIsNoFile) {
  const Temp_dir temp;
  EXPECT_THROW(Read(temp.Path("missing"), Name_pairs{}), Xep_file_not_found);
  EXPECT_THROW(Read(temp.Path(), Names_by_index{}, '\n', ':', ' ', ' '), Xep_file_not_found);
}

TEST(StringChopper, TakesWordsOffTheFront) {
  using Chopper = my_string_chopper_class;
  Chopper::Set_delims_default();
  std::string_view text = " \ta\n\nb 7 1e1 8x 2.5 5 ";
  std::string word;
  std::int32_t number = 0;
  Index_list numbers = {1};
  testing::internal::CaptureStdout();
  text >> word >> word >> number >> number;
  EXPECT_EQ(word + std::to_string(number), "b10");
  EXPECT_THROW(text >> number, Xerror_msg);
  EXPECT_EQ(text, "8x 2.5 5 ");  // a word that is refused stays
  text >> word >> numbers;
  EXPECT_TRUE(std::ranges::equal(numbers, std::vector<std::int32_t>{1, 3, 5}));
  EXPECT_EQ(testing::internal::GetCapturedStdout(),
            "WARNING: input'1e1' is suspicious...\nWARNING: input '2.5' is suspicious...\n");
  Chopper::Set_delims({' '});
  text = "9999999999";
  EXPECT_THROW(text >> numbers, Xerror_msg);

  Name_list names;
  text = " ";
  EXPECT_THROW(text >> names, Xerror_msg);
  const std::string long_names = "c " + std::string(200, 'd') + "  " + std::string(99999, 'e');
  text = long_names;
  text >> names;
  EXPECT_EQ(names, (Name_list{"c", std::string(200, 'd'), std::string(99999, 'e')}));
}

template <typename Field>
std::string Extracted(const std::string& text) {
  std::pair<Field, Field> pair;
  std::istringstream in(text);
  std::ostringstream out;
  in >> pair;
  out << pair.first << ',' << pair.second;
  return out.str();
}

TEST(PairFields, FormattedInputOfBothFields) {
  EXPECT_EQ(Extracted<std::string>("\v1\n-2x"), "1,-2x");
  EXPECT_EQ(Extracted<std::int32_t>("\v1\n-2x"), "1,-2");
  std::pair<std::string, std::string> names{"-", "-"};
  bool suspicious = true;
  for (const char* text : {"1", " "}) {
    EXPECT_THROW(Extracted<std::string>(text), Xerror_msg);
    EXPECT_FALSE(Convert_from_string(text, names, suspicious));
    EXPECT_EQ(names.first, "-");
  }
  for (const char* text : {"1", "1 b", "1 2147483648"})
    EXPECT_THROW(Extracted<std::int32_t>(text), Xerror_msg);
  EXPECT_TRUE(Convert_from_string("a b c", names, suspicious));
  EXPECT_EQ(names, std::pair("a"s, "b"s));
}

}  // namespace
}  // namespace gns
