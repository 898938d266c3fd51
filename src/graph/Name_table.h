#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>

#include "foundation/memory/Growing_array.h"

namespace gns {

/// Texts stored one behind the other in one block, known by their number in order of adding.
class Name_table {
 public:
  Name_table() = default;
  /// Texts that others hold, as All_bytes() and Ends() tell them; these outlive it.
  static Name_table Looking_at(std::span<const char> bytes, std::span<const std::size_t> ends) {
    Name_table names;
    names.bytes_ = Growing_array<char>::Looking_at(bytes);
    names.ends_ = Growing_array<std::size_t>::Looking_at(ends);
    return names;
  }

  /// Appends a text and yields its number. Nothing is folded: the caller sees to distinctness.
  std::uint32_t Add(std::string_view name);
  [[nodiscard]] std::string_view operator[](std::uint32_t number) const {
    const std::size_t start = number == 0 ? 0 : End_of(number - 1);
    return {bytes_.data() + start, End_of(number) - start};
  }
  [[nodiscard]] std::uint32_t size() const { return static_cast<std::uint32_t>(ends_.size()); }
  void Reserve(std::uint32_t names, std::size_t bytes);
  [[nodiscard]] std::size_t Bytes() const { return bytes_.size(); }
  /// The texts behind each other, and where each of them ends.
  [[nodiscard]] std::span<const char> All_bytes() const { return bytes_.Values(); }
  [[nodiscard]] std::span<const std::size_t> Ends() const { return ends_.Values(); }

 private:
  [[nodiscard]] std::size_t End_of(std::uint32_t number) const { return ends_.data()[number]; }

  Growing_array<char> bytes_;
  Growing_array<std::size_t> ends_;
};

}  // namespace gns
