#include "graph/Name_numbers.h"

#include <algorithm>
#include <cstddef>
#include <utility>

#include "control/Polled_resize.h"

namespace gns {

namespace {

constexpr std::uint64_t hash_half = 0xFFFFFFFF00000000U;

}  // namespace

std::uint32_t Name_numbers::Of(std::string_view name, std::uint64_t hash) {
  if (names_.size() >= slots_.size() / 2) Grow_slots();
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
  external_control::Assign_zeros(slots_, std::max<std::size_t>(1024, slots_.size() * 2));
  const std::size_t mask = slots_.size() - 1;
  for (std::uint32_t number = 0; number < names_.size(); ++number) {
    external_control::Check_inside_long_stage();
    const std::uint64_t hash = Name_hash(names_[number], key_);
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
