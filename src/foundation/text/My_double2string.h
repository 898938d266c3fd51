#pragma once

#include <string>

namespace gns {

/// Fixed-point text of `value` with `precision` digits behind the point, never an exponent; no
/// point if `precision` is 0.
std::string double2string(double value, unsigned precision);

}  // namespace gns
