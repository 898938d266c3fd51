#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

namespace gns {

/// Texts stored one behind the other in one block, known by their number in order of adding. One
/// that is moved from is empty.
class Name_table {
 public:
  /// Appends a text and yields its number. Nothing is folded: the caller sees to distinctness.
  std::uint32_t Add(std::string_view name);
  [[nodiscard]] std::string_view operator[](std::uint32_t number) const {
    return {bytes_.data() + starts_[number], starts_[number + 1] - starts_[number]};
  }
  [[nodiscard]] std::uint32_t size() const {
    return static_cast<std::uint32_t>(starts_.empty() ? 0 : starts_.size() - 1);
  }
  void Reserve(std::uint32_t names, std::size_t bytes);
  [[nodiscard]] std::size_t Bytes() const { return bytes_.size(); }

 private:
  std::vector<char> bytes_;
  std::vector<std::size_t> starts_;  ///< where each text starts, and the end; empty: no texts
};

}  // namespace gns
