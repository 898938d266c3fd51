#pragma once

#include <cmath>
#include <concepts>
#include <cstdint>
#include <string_view>

namespace gns {

/// Takes a number off the front of `text` as formatted input of a double does: white space is
/// skipped, then the longest run of sign, digits, one point and exponent is taken. False, with
/// nothing changed, if that run is no whole number ("-", ".", "1e+") or overflows. A number too
/// small gives the nearest there is, down to 0. "nan", "inf" and hexadecimal numbers aren't read.
bool Extract_double(std::string_view& text, double& number);

/// Reads `text` as one number with nothing but white space around it. False, with `number`
/// unchanged, if it is anything else.
bool stringtodouble(std::string_view text, double& number);

/// The integer nearest to `x`; halfway numbers go to the greater one (-2.5 gives -2).
/// The result must fit into 32 bits.
template <std::floating_point Real>
std::int32_t gRound(Real x) {
  const Real whole = std::trunc(x);
  const Real distance = std::abs(x - whole);
  if (std::abs(x - (whole - 1)) < distance) return static_cast<std::int32_t>(whole - 1);
  if (std::abs(x - (whole + 1)) > distance) return static_cast<std::int32_t>(whole);
  return static_cast<std::int32_t>(whole + 1);
}

}  // namespace gns
