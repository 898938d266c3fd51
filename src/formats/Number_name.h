#pragma once

#include <array>
#include <charconv>
#include <cstdint>
#include <string_view>

namespace gns {

/// A node's number as its name, in decimals.
class Number_name {
 public:
  explicit Number_name(std::uint64_t number)
      : size_(static_cast<std::size_t>(
            std::to_chars(text_.data(), text_.data() + text_.size(), number).ptr - text_.data())) {}

  [[nodiscard]] std::string_view Text() const { return {text_.data(), size_}; }

 private:
  std::array<char, 20> text_ = {};
  std::size_t size_;
};

}  // namespace gns
