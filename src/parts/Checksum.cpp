#include "parts/Checksum.h"

#include <algorithm>
#include <cstring>

namespace gns::parts {

namespace {

std::uint64_t Step(std::uint64_t state, std::uint64_t word) {
  constexpr std::uint64_t odd = 0x9e3779b97f4a7c15ULL;
  constexpr unsigned half = 32;
  const std::uint64_t product = (state ^ word) * odd;
  return product ^ product >> half;
}

}  // namespace

void Checksum::Take_block(const std::byte* block) {
  for (std::uint64_t& lane : lanes_) {
    std::uint64_t word = 0;
    std::memcpy(&word, block, sizeof word);
    lane = Step(lane, word);
    block += sizeof word;
  }
}

void Checksum::Add(std::span<const std::byte> bytes) {
  const std::size_t held = size_ % block_size;
  size_ += bytes.size();
  if (held > 0) {
    const std::size_t taken = std::min(block_size - held, bytes.size());
    std::ranges::copy(bytes.first(taken), rest_.begin() + static_cast<std::ptrdiff_t>(held));
    bytes = bytes.subspan(taken);
    if (held + taken < block_size) return;
    Take_block(rest_.data());
  }
  for (; bytes.size() >= block_size; bytes = bytes.subspan(block_size)) Take_block(bytes.data());
  std::ranges::copy(bytes, rest_.begin());
}

std::uint64_t Checksum::Value() const {
  Checksum end = *this;
  std::fill(end.rest_.begin() + static_cast<std::ptrdiff_t>(size_ % block_size), end.rest_.end(),
            std::byte{0});
  end.Take_block(end.rest_.data());
  std::uint64_t value = size_;
  for (const std::uint64_t lane : end.lanes_) value = Step(value, lane);
  return value;
}

}  // namespace gns::parts
