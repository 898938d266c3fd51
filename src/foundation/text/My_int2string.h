#pragma once

#include <cstdint>
#include <string>

namespace gns {

/// Plain decimal digits, with a leading "-" for a negative value.
std::string int2string(std::uint32_t value);
std::string int2string(std::int32_t value);

/// The decimal digits with zeros put in front up to `width` (at least 1) digits; the sign isn't
/// counted, and a longer value is never cut. The unsigned form goes through the signed one.
std::string int2string(std::uint32_t value, unsigned width);
std::string int2string(std::int32_t value, unsigned width);

/// The text followed by the decimal digits of the value.
std::string operator+(const std::string& text, std::uint32_t value);
std::string operator+(const std::string& text, std::int32_t value);

}  // namespace gns
