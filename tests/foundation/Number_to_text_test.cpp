#include <gtest/gtest.h>

#include <cmath>
#include <iomanip>
#include <limits>
#include <sstream>
#include <string>
#include <tuple>
#include <vector>

#include "foundation/text/My_double2string.h"
#include "foundation/text/My_int2string.h"

namespace gns {
namespace {

TEST(Double2String, EqualsFixedFormattedOutput) {
  for (const double value : {-0.0, 0.15, 2.5, -1e22, 1e-9, -1.7976931348623157e308, 1.0 / 3,
                             std::nan(""), -std::numeric_limits<double>::infinity()}) {
    for (const unsigned precision : {0U, 1U, 6U, 17U, 400U}) {
      std::ostringstream stream;
      stream << std::fixed << std::setprecision(static_cast<int>(precision)) << value;
      EXPECT_EQ(double2string(value, precision), stream.str());
    }
  }
}

TEST(Int2String, PadsWithZeros) {
  constexpr std::int32_t least = std::numeric_limits<std::int32_t>::min();
  const std::vector<std::tuple<std::int32_t, unsigned, std::string>> cases{
      {0, 3, "000"},   {5, 3, "005"},   {10, 3, "010"},
      {99, 3, "099"},  {100, 3, "100"}, {1000, 3, "1000"},
      {-5, 3, "-005"}, {7, 1, "7"},     {least, 11, "-02147483648"}};
  for (const auto& [value, width, text] : cases) EXPECT_EQ(int2string(value, width), text);
  EXPECT_EQ(int2string(4294967295U, 3), "-001");  // goes through the signed form
  EXPECT_EQ(std::string("k=") + 3000000000U, "k=3000000000");
}

}  // namespace
}  // namespace gns
