#include "foundation/text/My_string_to_d.h"

#include <charconv>
#include <locale>
#include <sstream>
#include <string>
#include <system_error>

#include "foundation/text/Text_fields.h"

namespace gns {

namespace {

constexpr bool Is_digit(char c) { return c >= '0' && c <= '9'; }
constexpr bool Is_sign(char c) { return c == '+' || c == '-'; }

/// Length of the longest start of `text` that formatted input collects before it converts. The
/// run need not be a number: "1e" is collected whole, and its conversion fails.
std::size_t Number_run(std::string_view text) {
  const std::size_t end = text.size();
  std::size_t i = 0;
  if (i < end && Is_sign(text[i])) ++i;
  bool digit = false;
  bool point = false;
  bool exponent = false;
  while (i < end) {
    const char c = text[i];
    if (Is_digit(c)) {
      digit = true;
    } else if (c == '.' && !point && !exponent) {
      point = true;
    } else if ((c == 'e' || c == 'E') && digit && !exponent) {
      exponent = true;
      if (i + 1 < end && Is_sign(text[i + 1])) ++i;
    } else {
      break;
    }
    ++i;
  }
  return i;
}

/// Formatted input itself, for the few numbers that don't fit into a double.
bool Convert_extreme(std::string_view run, double& number) {
  std::istringstream input{std::string(run)};
  input.imbue(std::locale::classic());
  double value = 0;
  if (!(input >> value)) return false;
  number = value;
  return true;
}

bool Convert_run(std::string_view run, double& number) {
  std::string_view body = run;
  if (body.starts_with('+')) body.remove_prefix(1);
  const char* const end = body.data() + body.size();
  double value = 0;
  const auto result = std::from_chars(body.data(), end, value);
  if (result.ec == std::errc::result_out_of_range) return Convert_extreme(run, number);
  if (result.ec != std::errc() || result.ptr != end) return false;
  number = value;
  return true;
}

}  // namespace

bool Extract_double(std::string_view& text, double& number) {
  std::string_view rest = text;
  Skip_space(rest);
  const std::size_t length = Number_run(rest);
  if (!Convert_run(rest.substr(0, length), number)) return false;
  rest.remove_prefix(length);
  text = rest;
  return true;
}

bool stringtodouble(std::string_view text, double& number) {
  double value = 0;
  if (!Extract_double(text, value) || !Extract_word(text).empty()) return false;
  number = value;
  return true;
}

}  // namespace gns
