#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>

namespace vorlane::report {

/// Numbers and texts, one behind the other, as bytes. Numbers take seven bits a byte, the lowest
/// first, with the eighth bit set in all but the last byte.
class Byte_block {
 public:
  void Put(std::uint64_t number) {
    constexpr unsigned bits = 7;
    constexpr std::uint64_t more = std::uint64_t{1} << bits;
    for (; number >= more; number >>= bits) bytes_ += static_cast<char>(number % more + more);
    bytes_ += static_cast<char>(number);
  }
  /// Small numbers of either sign are short: 0, -1, 1, -2 become 0, 1, 2, 3.
  void Put_signed(std::int64_t number) {
    const auto doubled = static_cast<std::uint64_t>(number) << 1U;
    Put(number < 0 ? ~doubled : doubled);
  }
  /// Its length in front.
  void Put(std::string_view text) {
    Put(text.size());
    bytes_ += text;
  }
  /// How many; how far the first is from `near`, signed; the differences of ascending numbers.
  void Put_ascending(std::span<const std::uint32_t> numbers, std::uint32_t near) {
    Put(numbers.size());
    if (!numbers.empty()) Put_signed(std::int64_t{numbers.front()} - near);
    for (std::size_t i = 1; i < numbers.size(); ++i) Put(numbers[i] - numbers[i - 1]);
  }
  void Put_byte(std::uint8_t byte) { bytes_ += static_cast<char>(byte); }

  [[nodiscard]] const std::string& Bytes() const { return bytes_; }

 private:
  std::string bytes_;
};

}  // namespace vorlane::report
