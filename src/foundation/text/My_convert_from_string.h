#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace gns {

/// Text to value. Each form yields true if `value` was written; refused text leaves it alone.
/// `suspicious` becomes true where an integer was not written as one: the text holds "." or "e",
/// or couldn't be converted. The other forms always set it to false.

bool Convert_from_string(std::string_view text, double& value, bool& suspicious);

/// The nearest integer of a number (see `gRound`); refused outside the range of 32 bits.
bool Convert_from_string(std::string_view text, std::int32_t& value, bool& suspicious);

/// As the signed form, but negative numbers are refused. Largest value: 2147483647.
bool Convert_from_string(std::string_view text, std::uint32_t& value, bool& suspicious);

/// "yes", "Yes", "YES", "true", "True", "TRUE", or the same of "no" and "false"; nothing else.
bool Convert_from_string(std::string_view text, bool& value, bool& suspicious);
bool Convert_from_string(std::string_view text, std::vector<bool>::reference value,
                         bool& suspicious);

/// A copy; never refused.
bool Convert_from_string(std::string_view text, std::string& value, bool& suspicious);

}  // namespace gns
