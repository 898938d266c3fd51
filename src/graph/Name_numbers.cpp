#include "graph/Name_numbers.h"

#include <algorithm>
#include <cstddef>
#include <cstring>
#include <utility>

namespace gns {

namespace {

constexpr std::uint64_t hash_half = 0xFFFFFFFF00000000U;

/// Folds a text into 64 bits, eight bytes at a time.
std::uint64_t Hash(std::string_view text) {
  constexpr std::uint64_t odd = 0x9E3779B97F4A7C15U;
  std::uint64_t hash = text.size() * odd;
  for (std::size_t at = 0; at < text.size(); at += sizeof(std::uint64_t)) {
    std::uint64_t word = 0;
    std::memcpy(&word, text.data() + at, std::min(sizeof word, text.size() - at));
    hash = (hash ^ word) * odd;
    hash ^= hash >> 29U;
  }
  return hash * odd;
}

}  // namespace

std::uint32_t Name_numbers::Of(std::string_view name) {
  if (names_.size() >= slots_.size() / 2) Grow_slots();
  const std::uint64_t hash = Hash(name);
  const std::size_t mask = slots_.size() - 1;
  for (std::size_t at = hash & mask;; at = (at + 1) & mask) {
    const std::uint64_t slot = slots_[at];
    if (slot == 0) {
      const std::uint32_t number = names_.Add(name);
      slots_[at] = (hash & hash_half) | (number + 1);
      return number;
    }
    const auto number = static_cast<std::uint32_t>(slot) - 1;
    if (((slot ^ hash) & hash_half) == 0 && names_[number] == name) return number;
  }
}

void Name_numbers::Grow_slots() {
  slots_.assign(std::max<std::size_t>(1024, slots_.size() * 2), 0);
  const std::size_t mask = slots_.size() - 1;
  for (std::uint32_t number = 0; number < names_.size(); ++number) {
    const std::uint64_t hash = Hash(names_[number]);
    std::size_t at = hash & mask;
    while (slots_[at] != 0) at = (at + 1) & mask;
    slots_[at] = (hash & hash_half) | (number + 1);
  }
}

Name_table Name_numbers::Take() {
  slots_ = {};
  return std::exchange(names_, {});
}

}  // namespace gns
