#include "foundation/text/My_convert_from_string.h"

#include <algorithm>
#include <array>
#include <limits>

#include "foundation/text/My_string_to_d.h"
#include "foundation/text/My_string_to_i.h"

namespace gns {

namespace {

/// Both integer forms: `lowest` is the smallest number that is accepted.
template <typename Integer>
bool Convert_integer(std::string_view text, double lowest, Integer& value, bool& suspicious) {
  suspicious = false;
  if (Convert_plain(text, value)) return true;
  // The first number that would be rounded out of the range.
  constexpr double too_high = std::numeric_limits<std::int32_t>::max() + 0.5;
  double number = 0;
  const bool good = stringtodouble(text, number) && number >= lowest && number < too_high;
  suspicious = !good || text.find_first_of(".e") != std::string_view::npos;
  if (good) value = static_cast<Integer>(gRound(number));
  return good;
}

template <typename Bit>
bool Convert_boolean(std::string_view text, Bit&& value, bool& suspicious) {
  constexpr std::array<std::string_view, 6> yes{"yes", "Yes", "YES", "true", "True", "TRUE"};
  constexpr std::array<std::string_view, 6> no{"no", "No", "NO", "false", "False", "FALSE"};
  suspicious = false;
  const bool truth = std::ranges::find(yes, text) != yes.end();
  if (!truth && std::ranges::find(no, text) == no.end()) return false;
  value = truth;
  return true;
}

}  // namespace

bool Convert_from_string(std::string_view text, double& value, bool& suspicious) {
  suspicious = false;
  return stringtodouble(text, value);
}

bool Convert_from_string(std::string_view text, std::int32_t& value, bool& suspicious) {
  constexpr double lowest = std::numeric_limits<std::int32_t>::min() - 0.5;
  return Convert_integer(text, lowest, value, suspicious);
}

bool Convert_from_string(std::string_view text, std::uint32_t& value, bool& suspicious) {
  return Convert_integer(text, 0.0, value, suspicious);
}

bool Convert_from_string(std::string_view text, bool& value, bool& suspicious) {
  return Convert_boolean(text, value, suspicious);
}

bool Convert_from_string(std::string_view text, std::vector<bool>::reference value,
                         bool& suspicious) {
  return Convert_boolean(text, value, suspicious);
}

bool Convert_from_string(std::string_view text, std::string& value, bool& suspicious) {
  suspicious = false;
  value = text;
  return true;
}

}  // namespace gns
