#include <gtest/gtest.h>

#include <cmath>
#include <iomanip>
#include <limits>
#include <sstream>
#include <string>
#include <vector>

#include "foundation/My_double2string.h"
#include "foundation/My_int2string.h"

namespace gns {
namespace {

TEST(Double2String, EqualsFixedFormattedOutput) {
  EXPECT_EQ(double2string(0.5, 3), "0.500");
  EXPECT_EQ(double2string(2.0, 0), "2");
  for (const double value : {0.0, -0.0, 0.15, 2.5, -1e22, 1e-9, -1.7976931348623157e308, 1.0 / 3,
                             std::nan(""), -std::numeric_limits<double>::infinity()}) {
    for (const unsigned precision : {0U, 1U, 6U, 17U, 400U}) {
      std::ostringstream stream;
      stream << std::fixed << std::setprecision(static_cast<int>(precision)) << value;
      EXPECT_EQ(double2string(value, precision), stream.str());
    }
  }
}

TEST(Int2String, PadsWithZeros) {
  struct Case {
    std::int32_t value;
    unsigned width;
    std::string text;
  };
  for (const Case& c :
       std::vector<Case>{{0, 3, "000"},
                         {5, 3, "005"},
                         {10, 3, "010"},
                         {99, 3, "099"},
                         {100, 3, "100"},
                         {1000, 3, "1000"},
                         {-5, 3, "-005"},
                         {7, 1, "7"},
                         {std::numeric_limits<std::int32_t>::min(), 11, "-02147483648"}}) {
    EXPECT_EQ(int2string(c.value, c.width), c.text);
  }
  EXPECT_EQ(int2string(42U, 4), "0042");
  EXPECT_EQ(int2string(4294967295U, 3), "-001");  // goes through the signed form
}

TEST(Int2String, PlainAndAppended) {
  EXPECT_EQ(int2string(4294967295U), "4294967295");
  EXPECT_EQ(int2string(-12), "-12");
  const std::string text = "k=";
  EXPECT_EQ(text + 3, "k=3");
  EXPECT_EQ(text + 3000000000U, "k=3000000000");
}

}  // namespace
}  // namespace gns
