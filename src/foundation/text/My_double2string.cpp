#include "foundation/text/My_double2string.h"

#include <charconv>
#include <limits>

namespace gns {

std::string double2string(double value, unsigned precision) {
  // The sign, the digits before the point, the point.
  constexpr std::size_t most_before = std::numeric_limits<double>::max_exponent10 + 3;
  std::string text(most_before + precision, '\0');
  const auto result = std::to_chars(text.data(), text.data() + text.size(), value,
                                    std::chars_format::fixed, static_cast<int>(precision));
  text.resize(static_cast<std::size_t>(result.ptr - text.data()));
  return text;
}

}  // namespace gns
