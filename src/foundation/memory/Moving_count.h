#pragma once

#include <cstddef>
#include <utility>

namespace gns {

/// A count of what stands in an array beside it: an object that is moved from counts nothing any
/// more, as its array holds nothing.
struct Moving_count {
  std::size_t value = 0;

  Moving_count() = default;
  ~Moving_count() = default;
  Moving_count(const Moving_count&) = default;
  Moving_count& operator=(const Moving_count&) = default;
  Moving_count(Moving_count&& other) noexcept : value(std::exchange(other.value, 0)) {}
  Moving_count& operator=(Moving_count&& other) noexcept {
    value = std::exchange(other.value, 0);
    return *this;
  }
};

}  // namespace gns
