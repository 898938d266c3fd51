#pragma once

#include <algorithm>
#include <cstddef>
#include <vector>

#include "control/Run_control.h"
#include "foundation/memory/Huge_pages.h"

namespace external_control {

/// Gives a vector a size at which all its values are zero, for reading here and there. The system
/// hands out the memory of a gigabyte in half a second, so this polls as a long stage does.
template <typename Value>
void Assign_zeros(std::vector<Value>& values, std::size_t size) {
  constexpr std::size_t step = std::size_t{1} << 20U;
  values = {};
  values.reserve(size);
  gns::Advise_huge_pages(values.data(), size * sizeof(Value));
  while (values.size() < size) {
    Check_inside_long_stage();
    values.resize(std::min(size, values.size() + step));
  }
}

}  // namespace external_control
