#include <gtest/gtest.h>

#include <cmath>
#include <iterator>
#include <random>
#include <sstream>
#include <string>
#include <vector>

#include "foundation/text/My_convert_from_string.h"
#include "foundation/text/My_string_to_d.h"
#include "foundation/text/My_string_to_i.h"
#include "foundation/text/Text_fields.h"

namespace gns {
namespace {

using namespace std::literals;

/// Compares an extraction with formatted input: success, number, and what is left behind it.
template <typename Number, typename Extract>
void Expect_like_formatted_input(const std::string& text, Extract extract) {
  std::istringstream stream(text);
  Number expected = 77;
  const bool good = static_cast<bool>(stream >> expected);
  if (!good) expected = 77;
  std::string_view rest = text;
  Number number = 77;
  ASSERT_EQ(extract(rest, number), good) << '"' << text << '"';
  EXPECT_TRUE(number == expected && std::signbit(number) == std::signbit(expected)) << text;
  stream.clear();
  EXPECT_EQ(rest, good ? std::string(std::istreambuf_iterator<char>(stream), {}) : text);
}

std::vector<std::string> Split(const std::string& text) {
  std::istringstream in(text);
  return {std::istream_iterator<std::string>(in), {}};
}

TEST(Extractions, EqualFormattedInput) {
  const std::string zeros(400, '0');
  const std::string between = "1.00000000000000011102230246251565404236316680908203";
  std::vector<std::string> texts = Split(
      "1e400 -1e400 1e-400 -1e-400 0x10 nan inf 4.9e-324 2.4e-324 1.7976931348623157e308 "
      "1.7976931348623159e308 0e999999999999 1e999999999999999999999 1e-99999999999999999999 "
      "9007199254740993 2147483647 2147483648 -2147483648 -2147483649 4294967295 4294967296 "
      "-4294967295 -4294967296 000000000012 18446744073709551616x \xa0\x31");
  for (const std::string& text : {"\t\n\r\f\v 1 2"s, "1\0002"s, "0." + zeros + "1", "1" + zeros,
                                  "1" + zeros + "e-400", between + "125", between + "124"})
    texts.push_back(text);
  const std::string alphabet = "+-.eE0123456789xanif ,";
  std::mt19937 random(5);
  for (int i = 0; i < 60000; ++i) {
    texts.emplace_back();
    for (auto left = random() % 13; left > 0; --left)
      texts.back() += alphabet[random() % (i % 2 == 0 ? alphabet.size() : 15)];
  }
  const auto extract_integer = [](auto& text, auto& number) {
    return Extract_integer(text, number);
  };
  for (const std::string& text : texts) {
    Expect_like_formatted_input<double>(text, Extract_double);
    Expect_like_formatted_input<std::int32_t>(text, extract_integer);
    Expect_like_formatted_input<std::uint32_t>(text, extract_integer);
    if (testing::Test::HasFailure()) return;
  }
}

TEST(ConvertDigits, LooksAtEachCharacterOfTheNumberAndAtNoOther) {
  for (std::size_t place = 0; place < 8; ++place) {
    for (int byte = 0; byte < 256; ++byte) {
      std::string text = "90817263";
      text[place] = static_cast<char>(byte);
      for (std::size_t length = 1; length <= text.size(); ++length) {
        const std::string word = text.substr(text.size() - length);
        const bool good = word.find_first_not_of("0123456789") == std::string::npos;
        std::int32_t number = -1;
        ASSERT_EQ(Convert_digits(text.data() + text.size(), length, number), good) << word;
        ASSERT_EQ(number, good ? std::stoi(word) : -1);
      }
    }
  }
}

TEST(GRound, HalvesGoUp) {
  const std::vector<std::pair<double, int>> cases{{2.5, 3}, {-2.5, -2}, {0.5, 1},   {-0.5, 0},
                                                  {2.4, 2}, {-2.6, -3}, {-0.6, -1}, {2.6, 3}};
  for (const auto& [x, nearest] : cases) EXPECT_EQ(gRound<double>(x), nearest) << x;
}

/// The value of a text or "refused", with "?" behind it if the text is suspicious.
template <typename Value>
std::string Converted(const std::string& text) {
  std::string results[2];
  for (const int before : {0, 1}) {
    auto value = static_cast<Value>(before);
    bool suspicious = false;
    const bool good = Convert_from_string(text, value, suspicious);
    EXPECT_TRUE(good || value == static_cast<Value>(before)) << text;
    results[before] = (good ? std::to_string(value) : "refused") + (suspicious ? "?" : "");
  }
  EXPECT_EQ(results[0], results[1]);
  return results[0];
}

/// Each case reads "TEXT=RESULT".
template <typename Value>
void Expect_conversions(const std::string& cases) {
  for (const std::string& word : Split(cases)) {
    const std::size_t middle = word.find('=');
    EXPECT_EQ(Converted<Value>(word.substr(0, middle)), word.substr(middle + 1)) << word;
  }
}

TEST(ConvertFromString, WantsOneValueAndNothingElse) {
  Expect_conversions<std::int32_t>(
      "5.0=5? 5.7=6? 1e3=1000? 1E3=1000 +8=8 -8=-8 999999999=999999999 0000000000000000000012=12 "
      "-2147483648=-2147483648 2147483647.4=2147483647? =refused? -=refused? 8x=refused? "
      "2147483647.5=refused? -2147483649=refused? 1e300=refused?");
  Expect_conversions<std::uint32_t>(
      "5=5 -0.0=0? 2147483647=2147483647 -1=refused? -0.1=refused? 2147483648=refused?");
  Expect_conversions<double>("1e3=1000.000000 12.5x=refused =refused 1.2.3=refused");
  Expect_conversions<bool>(
      "yes=1 Yes=1 YES=1 true=1 True=1 TRUE=1 no=0 No=0 NO=0 false=0 False=0 FALSE=0 "
      "yES=refused 1=refused 0=refused y=refused =refused");
  EXPECT_EQ(Converted<std::uint32_t>(" 5 "), "5");
  EXPECT_EQ(Converted<double>("1 2"), "refused");
  EXPECT_EQ(Converted<bool>(" yes"), "refused");

  std::vector<bool> bits{false, true};
  std::string copy;
  bool suspicious = true;
  EXPECT_TRUE(Convert_from_string("yes", bits[0], suspicious) && bits[0]);
  EXPECT_TRUE(Convert_from_string(" a ", copy, suspicious) && copy == " a ");
}

TEST(TextFields, WordsAndTrim) {
  std::string_view text = " a\0b\t\v c"sv;
  for (const std::string_view word : {"a\0b"sv, "c"sv, ""sv}) EXPECT_EQ(Extract_word(text), word);
  EXPECT_EQ(trim("  a b\t", " \t"), "a b");
  EXPECT_EQ(trim("   ", " \t"), "");
  EXPECT_EQ(trim("xay", "x"), "ay");
}

}  // namespace
}  // namespace gns
