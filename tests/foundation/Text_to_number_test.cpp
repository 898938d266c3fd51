#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <iterator>
#include <random>
#include <sstream>
#include <string>
#include <vector>

#include "foundation/My_convert_from_string.h"
#include "foundation/My_string_to_d.h"
#include "foundation/My_string_to_i.h"
#include "foundation/Text_fields.h"

namespace gns {
namespace {

using namespace std::literals;

/// What formatted input makes of a text: success, number, and what is left behind it.
void Expect_like_formatted_input(const std::string& text) {
  std::istringstream stream(text);
  double expected = -7;
  const bool good = static_cast<bool>(stream >> expected);
  std::string_view rest = text;
  double number = -7;
  ASSERT_EQ(Extract_double(rest, number), good) << '"' << text << '"';
  if (!good) {
    EXPECT_EQ(number, -7) << '"' << text << '"';
    EXPECT_EQ(rest, text);
    return;
  }
  EXPECT_EQ(std::bit_cast<std::uint64_t>(number), std::bit_cast<std::uint64_t>(expected))
      << '"' << text << '"';
  stream.clear();
  const std::string left{std::istreambuf_iterator<char>(stream), {}};
  EXPECT_EQ(rest, left) << '"' << text << '"';
}

TEST(ExtractDouble, EqualsFormattedInputOnEdges) {
  for (const std::string& text : {""s,
                                  " "s,
                                  "."s,
                                  "-"s,
                                  "+"s,
                                  "+."s,
                                  "1e"s,
                                  "1e+"s,
                                  "1e+-2"s,
                                  "1e5e"s,
                                  "1e5.3"s,
                                  "1.5.3"s,
                                  ".e5"s,
                                  "5.e3"s,
                                  "+.5"s,
                                  "-.5e-1x"s,
                                  "+-1"s,
                                  "--1"s,
                                  "0x10"s,
                                  "3abc"s,
                                  "nan"s,
                                  "inf"s,
                                  "-inf"s,
                                  "1e400"s,
                                  "-1e400"s,
                                  "1e-400"s,
                                  "-1e-400"s,
                                  "0.5e-400"s,
                                  "1e-310"s,
                                  "4.9e-324"s,
                                  "2.4e-324"s,
                                  "1.7976931348623157e308"s,
                                  "1.7976931348623159e308"s,
                                  "0e999999999999"s,
                                  "1e999999999999999999999"s,
                                  "1e-99999999999999999999"s,
                                  "00000.1"s,
                                  "000e1"s,
                                  "-0"s,
                                  "\t\n\r\f\v 1 2"s,
                                  "\x00"s
                                  "1"s,
                                  "1\0"s
                                  "2"s,
                                  "1,5"s,
                                  "0.1"s,
                                  "\xa0"s
                                  "1"s,
                                  "9007199254740993"s,
                                  "123456789012345678901234567890"s,
                                  "0." + std::string(400, '0') + "1",
                                  "1" + std::string(400, '0'),
                                  "1" + std::string(400, '0') + "e-400",
                                  "1.00000000000000011102230246251565404236316680908203125"s,
                                  "1.00000000000000011102230246251565404236316680908203124"s}) {
    Expect_like_formatted_input(text);
  }
}

TEST(ExtractDouble, EqualsFormattedInputOnRandomText) {
  const std::string alphabet = "+-.eE0123456789xanif ";
  std::mt19937 random(5);
  std::uniform_int_distribution<std::size_t> letter(0, alphabet.size() - 1);
  std::uniform_int_distribution<int> length(0, 12);
  std::string text;
  for (int i = 0; i < 200000; ++i) {
    text.clear();
    for (int n = length(random); n > 0; --n) text += alphabet[letter(random)];
    Expect_like_formatted_input(text);
    if (HasFailure()) return;
  }
}

template <typename Integer>
void Expect_integer_like_formatted_input(const std::string& text) {
  std::istringstream stream(text);
  Integer expected = 77;
  const bool good = static_cast<bool>(stream >> expected);
  if (!good) expected = 77;
  std::string_view rest = text;
  Integer number = 77;
  ASSERT_EQ(Extract_integer(rest, number), good) << '"' << text << '"';
  EXPECT_EQ(number, expected) << '"' << text << '"';
  stream.clear();
  const std::string left{std::istreambuf_iterator<char>(stream), {}};
  EXPECT_EQ(rest, good ? left : text) << '"' << text << '"';
}

TEST(ExtractInteger, EqualsFormattedInput) {
  std::vector<std::string> texts = {
      "2147483647",  "2147483648",   "-2147483648",           "-2147483649",  "4294967295",
      "4294967296",  "-4294967295",  "-4294967296",           "+4294967295",  "000000000012",
      "99999999999", "-99999999999", "18446744073709551616x", "\t\n\v\f\r 5", "5\v6"};
  const std::string alphabet = "+-0123456789x. ,e";
  std::mt19937 random(5);
  for (int i = 0; i < 100000; ++i) {
    texts.emplace_back();
    for (auto left = random() % 12; left > 0; --left)
      texts.back() += alphabet[random() % alphabet.size()];
  }
  for (const std::string& text : texts) {
    Expect_integer_like_formatted_input<std::int32_t>(text);
    Expect_integer_like_formatted_input<std::uint32_t>(text);
    if (HasFailure()) return;
  }
}

TEST(StringToDouble, WantsOneNumberAndNothingElse) {
  double number = 0;
  EXPECT_TRUE(stringtodouble(" 12.5 \n", number));
  EXPECT_EQ(number, 12.5);
  for (const char* text : {"12.5 x", "12.5x", "x", "", " ", "0x10", "1 2", "1.2.3"}) {
    EXPECT_FALSE(stringtodouble(text, number)) << text;
    EXPECT_EQ(number, 12.5);
  }
}

TEST(GRound, HalvesGoUp) {
  const std::vector<std::pair<double, int>> cases{{2.5, 3}, {-2.5, -2}, {0.5, 1},      {-0.5, 0},
                                                  {2.4, 2}, {-2.6, -3}, {-2.4, -2},    {0, 0},
                                                  {2.6, 3}, {-0.6, -1}, {1e6, 1000000}};
  for (const auto& [x, nearest] : cases) EXPECT_EQ(gRound<double>(x), nearest) << x;
}

struct Integer_case {
  std::string text;
  bool good;
  bool suspicious;
  std::int64_t value = 77;
};

template <typename Integer>
void Expect_conversions(const std::vector<Integer_case>& cases) {
  for (const Integer_case& c : cases) {
    Integer value = 77;
    bool suspicious = !c.suspicious;
    EXPECT_EQ(Convert_from_string(c.text, value, suspicious), c.good) << c.text;
    EXPECT_EQ(suspicious, c.suspicious) << c.text;
    EXPECT_EQ(value, c.value) << c.text;
  }
}

TEST(ConvertFromString, Integers) {
  Expect_conversions<std::int32_t>({{"5", true, false, 5},
                                    {"5.0", true, true, 5},
                                    {"5.7", true, true, 6},
                                    {"1e3", true, true, 1000},
                                    {"1E3", true, false, 1000},
                                    {"", false, true},
                                    {"-", false, true},
                                    {"+8", true, false, 8},
                                    {"-0", true, false, 0},
                                    {"8 ", true, false, 8},
                                    {"8x", false, true},
                                    {"999999999", true, false, 999999999},
                                    {"0000000000000000000012", true, false, 12},
                                    {"-8", true, false, -8},
                                    {"abc", false, true},
                                    {"2147483647.4", true, true, 2147483647},
                                    {"2147483647.5", false, true},
                                    {"-2147483648", true, false, -2147483648LL},
                                    {"-2147483649", false, true},
                                    {"1e300", false, true}});
  Expect_conversions<std::uint32_t>({{" 5 ", true, false, 5},
                                     {"-1", false, true},
                                     {"-0.0", true, true, 0},
                                     {"-0.1", false, true},
                                     {"2147483647", true, false, 2147483647},
                                     {"2147483648", false, true}});
}

TEST(ConvertFromString, BooleansAndTheRest) {
  std::vector<bool> bits{false, true};
  bool suspicious = true;
  for (const char* text : {"yes", "Yes", "YES", "true", "True", "TRUE"}) {
    bool value = false;
    bits[0] = false;
    EXPECT_TRUE(Convert_from_string(text, value, suspicious) && value) << text;
    EXPECT_TRUE(Convert_from_string(text, bits[0], suspicious) && bits[0]) << text;
  }
  for (const char* text : {"no", "No", "NO", "false", "False", "FALSE"}) {
    bits[1] = true;
    EXPECT_TRUE(Convert_from_string(text, bits[1], suspicious) && !bits[1]) << text;
  }
  for (const char* text : {"yES", "1", "0", "y", "n", " yes", ""}) {
    bool value = true;
    suspicious = true;
    EXPECT_FALSE(Convert_from_string(text, value, suspicious)) << text;
    EXPECT_TRUE(value && !suspicious) << text;
  }
  std::string copy;
  double number = 0;
  EXPECT_TRUE(Convert_from_string(" a ", copy, suspicious));
  EXPECT_EQ(copy, " a ");
  suspicious = true;
  EXPECT_TRUE(Convert_from_string("1e3", number, suspicious));
  EXPECT_EQ(number, 1000);
  EXPECT_FALSE(suspicious);
}

TEST(TextFields, WordsAndTrim) {
  std::string_view text = " a\0b\t\v c"sv;
  EXPECT_EQ(Extract_word(text), "a\0b"sv);
  EXPECT_EQ(Extract_word(text), "c");
  EXPECT_EQ(Extract_word(text), "");
  EXPECT_EQ(trim("  a b\t", " \t"), "a b");
  EXPECT_EQ(trim("   ", " \t"), "");
  EXPECT_EQ(trim("", " \t"), "");
  EXPECT_EQ(trim("xay", "x"), "ay");
}

}  // namespace
}  // namespace gns
