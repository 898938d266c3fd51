#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>

namespace gns::parts {

/// A number of 64 bits that tells bytes from others; they may come in any pieces. Four numbers take
/// eight bytes in turn, by steps that can be undone: a change of a single byte, or of several among
/// eight, is sure to be noticed, any other misses with a chance of 2^-64. Part of the format of
/// files, and the same everywhere.
class Checksum {
 public:
  void Add(std::span<const std::byte> bytes);
  [[nodiscard]] std::uint64_t Value() const;

 private:
  static constexpr std::size_t block_size = 32;

  void Take_block(const std::byte* block);

  std::array<std::uint64_t, 4> lanes_ = {1, 2, 3, 4};
  std::array<std::byte, block_size> rest_ = {};
  std::uint64_t size_ = 0;
};

}  // namespace gns::parts
